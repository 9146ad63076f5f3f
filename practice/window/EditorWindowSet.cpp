#include "window/EditorWindowSet.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace {

using Kind = WindowDescription::Kind;

/// The entry of the window stack that stands for any open context menu.
QString popupEntry()
{
    return QStringLiteral("Popup");
}

/// The place nearest to @p place at which @p size fits into @p screen.
QPoint fitted(const QPoint &place, const QSize &size, const QRect &screen)
{
    const QPoint last = screen.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
    return {qMax(screen.left(), qMin(place.x(), last.x())), qMax(screen.top(), qMin(place.y(), last.y()))};
}

} // namespace

std::unique_ptr<EditorWindowSet> EditorWindowSet::create(const QString &locale, QStringList *errors,
                                                         const QString &folder)
{
    EditorGround ground = EditorGround::read(locale, folder, errors);
    const ControlContext context{ground.project.get(), ground.painter.get(), ground.locale};
    const WindowBuilder builder(ground.descriptions, context, errors);
    if (!errors->isEmpty()) {
        return nullptr;
    }
    WindowBuilder::Windows windows = builder.make();
    return std::unique_ptr<EditorWindowSet>(new EditorWindowSet(std::move(ground), std::move(windows)));
}

EditorWindowSet::EditorWindowSet(EditorGround ground, WindowBuilder::Windows windows)
    : m_ground(std::move(ground))
    , m_main(std::move(windows.main))
    , m_windows(std::move(windows.byName))
{
    for (EditorWindow *window : qAsConst(m_windows)) {
        wire(window);
    }
    connect(m_ground.project.get(), &Project::changed, this, &EditorWindowSet::updateTitle);
    connect(m_ground.project.get(), &Project::left, this, &EditorWindows::projectLeft);
    connect(m_ground.project.get(), &Project::created, this, &EditorWindows::projectCreated);
    connect(m_ground.project.get(), &Project::failed, this, &EditorWindows::problemFound);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationInactive && m_popup != nullptr) {
            takePopupAway();
            Q_EMIT popupAbandoned();
        }
    });
    qApp->installEventFilter(this);
    updateTitle();
}

EditorWindowSet::~EditorWindowSet() = default;

void EditorWindowSet::wire(EditorWindow *window)
{
    connect(window, &EditorWindow::happened, this,
            [this, window](const QString &type, const QString &target, const QString &value) {
                const QString key = m_ground.descriptions.contains(window->key())
                                        ? window->key()
                                        : m_ground.descriptions.popupKey();
                Q_EMIT happened({type, target, value, key});
            });
    connect(window, &EditorWindow::asked, this,
            [this, window](const ControlAction &action, const QPoint &position) {
                onAsked(window, action, position);
            });
    connect(window, &EditorWindow::closeRequested, this, [this, window] { onCloseRequested(window->key()); });
}

bool EditorWindowSet::open(const QString &windowKey)
{
    return openWith(windowKey, QString());
}

bool EditorWindowSet::openWith(const QString &windowKey, const QString &begin)
{
    if (!m_ground.descriptions.contains(windowKey)) {
        return false;
    }
    const WindowDescription &description = m_ground.descriptions[windowKey];
    if (description.kind == Kind::kPart) {
        return open(description.owner);
    }
    if (description.kind != Kind::kWindow) {
        return false;
    }
    EditorWindow *window = m_windows[windowKey];
    hidePopup();
    if (m_stack.contains(windowKey)) {
        window->raise();
        window->activateWindow();
        return true;
    }
    place(window, description);
    window->setLayer(description.isDraft ? m_ground.project->drafts().begin()
                                         : m_ground.project->drafts().top());
    window->run(begin);
    window->show();
    window->activateWindow();
    m_stack.append(windowKey);
    Q_EMIT pushed(windowKey);
    m_toldOrigins.clear();
    tellPlaces(window);
    tellState(windowKey, "open");
    return true;
}

void EditorWindowSet::place(EditorWindow *window, const WindowDescription &description) const
{
    const QRect screen = screenRect();
    const QPoint base = window == m_main.get() ? screen.topLeft() : m_main->mapToGlobal(QPoint());
    window->setGeometry(QRect(fitted(base + description.place, description.size, screen), description.size));
}

void EditorWindowSet::close(const QString &windowKey)
{
    if (windowKey == popupEntry() || windowKey == m_ground.descriptions.popupKey()) {
        hidePopup();
        return;
    }
    // What stands above a window belongs to it and goes with it.
    while (m_stack.contains(windowKey)) {
        closeTop();
    }
}

void EditorWindowSet::closeTop()
{
    hidePopup();
    const QString key = m_stack.takeLast();
    EditorWindow *window = m_windows[key];
    window->hide();
    if (m_ground.descriptions[key].isDraft) {
        m_ground.project->drafts().drop(&window->layer());
    }
    window->setLayer(&m_ground.project->files());
    if (!m_stack.isEmpty()) {
        m_windows[m_stack.last()]->activateWindow();
    }
    Q_EMIT popped(key);
    tellState(key, "close");
}

QStringList EditorWindowSet::openWindows() const
{
    return m_popup != nullptr ? m_stack + QStringList{popupEntry()} : m_stack;
}

std::optional<QPoint> EditorWindowSet::origin(const QString &windowKey) const
{
    if (windowKey == popupEntry() || windowKey == m_ground.descriptions.popupKey()) {
        return m_popup != nullptr ? std::optional(m_popup->mapToGlobal(QPoint())) : std::nullopt;
    }
    if (!m_ground.descriptions.contains(windowKey)) {
        return {};
    }
    const WindowDescription &description = m_ground.descriptions[windowKey];
    if (description.kind == Kind::kArea) {
        return m_ground.descriptions.contains(description.owner) ? origin(description.owner)
                                                                 : screenRect().topLeft();
    }
    const EditorWindow *window = m_windows[windowKey];
    return window->isVisible() ? std::optional(window->mapToGlobal(QPoint())) : std::nullopt;
}

QString EditorWindowSet::title(const QString &windowKey) const
{
    if (!m_ground.descriptions.contains(windowKey)) {
        return {};
    }
    return m_ground.descriptions[windowKey].title.value(m_ground.locale);
}

QRect EditorWindowSet::screenRect() const
{
    const QWindow *handle = m_main->windowHandle();
    return (handle != nullptr ? handle->screen() : QApplication::primaryScreen())->geometry();
}

void EditorWindowSet::setProjectsFolder(const QString &folder)
{
    m_ground.project->setProjectsFolder(folder);
}

bool EditorWindowSet::replaceFiles(const QMap<QString, QString> &files)
{
    return m_ground.project->replaceFiles(files);
}

EditorWindow *EditorWindowSet::window(const QString &keyOrPopup) const
{
    return m_windows.value(keyOrPopup);
}

void EditorWindowSet::onAsked(EditorWindow *window, const ControlAction &action, const QPoint &position)
{
    hidePopup();
    if (action.close) {
        close(window->key());
    }
    if (!action.open.isEmpty()) {
        openWith(action.open, action.begin);
    }
    if (!action.popup.isEmpty()) {
        showPopup(action.popup, position);
    }
}

void EditorWindowSet::onCloseRequested(const QString &key)
{
    if (m_windows[key]->hasTimedAction()) {
        return;
    }
    close(key);
    if (key == WindowBuilder::mainKey()) {
        Q_EMIT mainWindowClosed();
    }
}

void EditorWindowSet::showPopup(const QString &name, const QPoint &position)
{
    hidePopup();
    m_popup = m_windows[name];
    m_popup->setLayer(m_ground.project->drafts().top());
    m_popup->move(fitted(position, m_popup->size(), screenRect()));
    m_popup->show();
    Q_EMIT pushed(popupEntry());
    tellPlaces(m_popup);
    Q_EMIT happened({QStringLiteral("popup"), name, QString(), m_ground.descriptions.popupKey()});
}

void EditorWindowSet::hidePopup()
{
    if (m_popup == nullptr) {
        return;
    }
    takePopupAway();
    Q_EMIT popped(popupEntry());
}

void EditorWindowSet::takePopupAway()
{
    EditorWindow *popup = std::exchange(m_popup, nullptr);
    popup->hide();
    popup->setLayer(&m_ground.project->files());
}

void EditorWindowSet::tellPlace(const QString &key)
{
    Q_EMIT moved(key, origin(key).value_or(QPoint()));
}

void EditorWindowSet::tellPlaces(EditorWindow *window)
{
    const QPoint at = window->mapToGlobal(QPoint());
    if (window == m_popup) {
        tellPlace(m_ground.descriptions.popupKey());
        tellPlace(popupEntry());
        return;
    }
    const QString &key = window->key();
    const auto told = m_toldOrigins.constFind(key);
    if (told != m_toldOrigins.constEnd() && *told == at) {
        return;
    }
    m_toldOrigins.insert(key, at);
    tellPlace(key);
    const auto places = window->controlPlaces();
    for (const auto &[name, position] : places) {
        Q_EMIT controlMoved(key + QLatin1Char('_') + name, at + position);
    }
    const QStringList keys = m_ground.descriptions.keys();
    for (const QString &other : keys) {
        const WindowDescription &description = m_ground.descriptions[other];
        if (description.owner != key) {
            continue;
        }
        if (description.kind == Kind::kPart) {
            tellPlaces(m_windows[other]);
        } else {
            tellPlace(other);
        }
    }
}

void EditorWindowSet::updateVisible()
{
    const bool visible = m_main->isVisible() && !m_main->isMinimized();
    if (std::exchange(m_visible, visible) != visible) {
        Q_EMIT visibilityChanged(visible);
    }
}

void EditorWindowSet::updateTitle()
{
    QString title = m_ground.descriptions[WindowBuilder::mainKey()].title.value(m_ground.locale);
    if (m_ground.project->isOpen()) {
        title = QStringLiteral("%1[*] \u2013 %2").arg(m_ground.project->name(), title);
    }
    m_main->setWindowTitle(title);
    m_main->setWindowModified(m_ground.project->isOpen() && m_ground.project->isModified());
}

void EditorWindowSet::tellState(const QString &key, const char *state)
{
    Q_EMIT happened({QStringLiteral("windowState"), key, QString::fromLatin1(state), key});
}

bool EditorWindowSet::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (auto *widget = qobject_cast<QWidget *>(watched);
            widget != nullptr && widget->window() != m_popup) {
            hidePopup();
        }
        break;
    case QEvent::KeyPress:
        if (m_popup != nullptr && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            hidePopup();
            return true;
        }
        break;
    case QEvent::Move:
        if (auto *window = qobject_cast<EditorWindow *>(watched);
            window != nullptr && m_stack.contains(window->key())) {
            tellPlaces(window);
        }
        break;
    case QEvent::WindowStateChange:
    case QEvent::Show:
    case QEvent::Hide:
        if (watched == m_main.get()) {
            updateVisible();
        }
        break;
    default:
        break;
    }
    return EditorWindows::eventFilter(watched, event);
}
