#include "window/EditorWindowSet.h"

#include "lesson/LessonWords.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QTimer>

#include <utility>

// Outside of any namespace, as the macro needs it: the files are compiled into a static library.
static void initWindowDescriptions()
{
    Q_INIT_RESOURCE(descriptions);
}

namespace {

using Kind = WindowDescription::Kind;

QString mainKey()
{
    return QStringLiteral("MainWindow");
}

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
    initWindowDescriptions();
    const QString known =
        LessonWords::locales().contains(locale) ? locale : LessonWords::locales().constFirst();
    const EditorNames names = EditorProject::names();
    DescriptionSet descriptions = DescriptionSet::read(folder, &names, errors);
    ProjectData data = ProjectData::read(folder + QStringLiteral("/data/project.json"), known, errors);
    if (!errors->isEmpty())
        return nullptr;
    return std::unique_ptr<EditorWindowSet>(
        new EditorWindowSet(std::move(descriptions), std::move(data), known));
}

EditorWindowSet::EditorWindowSet(DescriptionSet descriptions, ProjectData data, const QString &locale)
    : m_descriptions(std::move(descriptions))
    , m_project(std::make_unique<EditorProject>(std::move(data)))
    , m_painter(&m_project->data())
    , m_context{m_project.get(), &m_painter, locale}
{
    build();
    connect(m_project.get(), &EditorProject::changed, this, &EditorWindowSet::updateTitle);
    connect(m_project.get(), &EditorProject::created, this, &EditorWindows::projectCreated);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationInactive && m_popup != nullptr) {
            std::exchange(m_popup, nullptr)->hide();
            Q_EMIT popupAbandoned();
        }
    });
    qApp->installEventFilter(this);
}

EditorWindowSet::~EditorWindowSet() = default;

void EditorWindowSet::build()
{
    const WindowDescription &main = m_descriptions[mainKey()];
    m_main.reset(add(mainKey(), main.size, main.controls, nullptr, Qt::Window));
    const QStringList keys = m_descriptions.keys();
    for (const QString &key : keys) {
        const WindowDescription &description = m_descriptions[key];
        if (description.kind == Kind::kPart) {
            add(key, description.size, description.controls, m_main.get(), Qt::Widget)
                ->move(description.place);
        } else if (description.kind == Kind::kWindow && key != mainKey()) {
            EditorWindow *window = add(key, description.size, description.controls, m_main.get(), Qt::Dialog);
            // Blocks the editor, and not the lesson strip, with which the person passes a step.
            window->setWindowModality(Qt::WindowModal);
            window->setWindowTitle(m_context.text(description.title));
            if (description.closesAfterMs > 0) {
                auto *timer = new QTimer(window);
                timer->setSingleShot(true);
                timer->setInterval(description.closesAfterMs);
                connect(timer, &QTimer::timeout, window,
                        [window, after = description.after] { window->act(after, QPoint()); });
                m_timers.insert(key, timer);
            }
        }
        for (const PopupDescription &popup : description.popups) {
            EditorWindow *menu = add(popup.name, popup.size, popup.controls, m_main.get(),
                                     Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
            menu->setAttribute(Qt::WA_ShowWithoutActivating);
            menu->setWindowTitle(m_context.text(description.title));
        }
    }
    updateTitle();
}

EditorWindow *EditorWindowSet::add(const QString &name, const QSize &size,
                                   const QVector<ControlDescription> &controls, QWidget *parent,
                                   Qt::WindowFlags flags)
{
    auto *window = new EditorWindow(name, size, controls, m_context, parent, flags);
    m_windows.insert(name, window);
    connect(window, &EditorWindow::happened, this,
            [this, window](const QString &type, const QString &target, const QString &value) {
                const QString key =
                    m_descriptions.contains(window->key()) ? window->key() : m_descriptions.popupKey();
                Q_EMIT happened({type, target, value, key});
            });
    connect(window, &EditorWindow::asked, this,
            [this, window](const ControlAction &action, const QPoint &position) {
                onAsked(window, action, position);
            });
    connect(window, &EditorWindow::closeRequested, this, [this, window] { onCloseRequested(window->key()); });
    return window;
}

bool EditorWindowSet::open(const QString &windowKey)
{
    if (!m_descriptions.contains(windowKey))
        return false;
    const WindowDescription &description = m_descriptions[windowKey];
    if (description.kind == Kind::kPart)
        return open(description.owner);
    if (description.kind != Kind::kWindow)
        return false;
    EditorWindow *window = m_windows[windowKey];
    hidePopup();
    if (m_stack.contains(windowKey)) {
        window->raise();
        window->activateWindow();
        return true;
    }
    place(window, description);
    window->show();
    window->activateWindow();
    m_stack.append(windowKey);
    Q_EMIT pushed(windowKey);
    m_toldOrigins.clear();
    tellPlaces(window);
    if (QTimer *timer = m_timers.value(windowKey))
        timer->start();
    tellState(windowKey, "open");
    return true;
}

void EditorWindowSet::place(EditorWindow *window, const WindowDescription &description) const
{
    const QRect screen = screenRect();
    const QPoint base = window == mainWindow() ? screen.topLeft() : mainWindow()->mapToGlobal(QPoint());
    window->setGeometry(QRect(fitted(base + description.place, description.size, screen), description.size));
}

void EditorWindowSet::close(const QString &windowKey)
{
    if (windowKey == popupEntry() || windowKey == m_descriptions.popupKey()) {
        hidePopup();
        return;
    }
    // What stands above a window belongs to it and goes with it.
    while (m_stack.contains(windowKey))
        closeTop();
}

void EditorWindowSet::closeTop()
{
    hidePopup();
    const QString key = m_stack.takeLast();
    if (QTimer *timer = m_timers.value(key))
        timer->stop();
    m_windows[key]->hide();
    if (!m_stack.isEmpty())
        m_windows[m_stack.last()]->activateWindow();
    Q_EMIT popped(key);
    tellState(key, "close");
}

QStringList EditorWindowSet::openWindows() const
{
    return m_popup != nullptr ? m_stack + QStringList{popupEntry()} : m_stack;
}

std::optional<QPoint> EditorWindowSet::origin(const QString &windowKey) const
{
    if (windowKey == popupEntry() || windowKey == m_descriptions.popupKey())
        return m_popup != nullptr ? std::optional(m_popup->mapToGlobal(QPoint())) : std::nullopt;
    if (!m_descriptions.contains(windowKey))
        return {};
    const WindowDescription &description = m_descriptions[windowKey];
    if (description.kind == Kind::kArea)
        return m_descriptions.contains(description.owner) ? origin(description.owner)
                                                          : screenRect().topLeft();
    const EditorWindow *window = m_windows[windowKey];
    return window->isVisible() ? std::optional(window->mapToGlobal(QPoint())) : std::nullopt;
}

QString EditorWindowSet::title(const QString &windowKey) const
{
    if (!m_descriptions.contains(windowKey))
        return {};
    const WindowDescription &description = m_descriptions[windowKey];
    return m_context.text(description.title);
}

QRect EditorWindowSet::screenRect() const
{
    return m_main->screen()->geometry();
}

void EditorWindowSet::setProjectsFolder(const QString &folder)
{
    m_project->setField(QStringLiteral("newProject.location"), folder);
}

void EditorWindowSet::showProject(const QMap<QString, QString> &files)
{
    m_project->show(ProjectContents::read(files, m_project->data().tiles.size()));
}

EditorWindow *EditorWindowSet::window(const QString &keyOrPopup) const
{
    return m_windows.value(keyOrPopup);
}

EditorWindow *EditorWindowSet::mainWindow() const
{
    return m_main.get();
}

void EditorWindowSet::onAsked(EditorWindow *window, const ControlAction &action, const QPoint &position)
{
    hidePopup();
    if (action.close)
        close(window->key());
    if (!action.open.isEmpty())
        open(action.open);
    if (!action.popup.isEmpty())
        showPopup(action.popup, position);
}

void EditorWindowSet::onCloseRequested(const QString &key)
{
    if (m_timers.contains(key))
        return;
    close(key);
    if (key == mainKey())
        Q_EMIT mainWindowClosed();
}

void EditorWindowSet::showPopup(const QString &name, const QPoint &position)
{
    hidePopup();
    m_popup = m_windows[name];
    m_popup->move(fitted(position, m_popup->size(), screenRect()));
    m_popup->show();
    Q_EMIT pushed(popupEntry());
    tellPlaces(m_popup);
    Q_EMIT happened({QStringLiteral("popup"), name, QString(), m_descriptions.popupKey()});
}

void EditorWindowSet::hidePopup()
{
    if (m_popup == nullptr)
        return;
    std::exchange(m_popup, nullptr)->hide();
    Q_EMIT popped(popupEntry());
}

void EditorWindowSet::tellPlace(const QString &key)
{
    Q_EMIT moved(key, origin(key).value_or(QPoint()));
}

void EditorWindowSet::tellPlaces(EditorWindow *window)
{
    const QPoint at = window->mapToGlobal(QPoint());
    if (window == m_popup) {
        tellPlace(m_descriptions.popupKey());
        tellPlace(popupEntry());
        return;
    }
    const QString &key = window->key();
    const auto told = m_toldOrigins.constFind(key);
    if (told != m_toldOrigins.constEnd() && *told == at)
        return;
    m_toldOrigins.insert(key, at);
    tellPlace(key);
    const auto places = window->controlPlaces();
    for (const auto &[name, position] : places)
        Q_EMIT controlMoved(key + QLatin1Char('_') + name, at + position);
    const QStringList keys = m_descriptions.keys();
    for (const QString &other : keys) {
        const WindowDescription &description = m_descriptions[other];
        if (description.owner != key)
            continue;
        if (description.kind == Kind::kPart)
            tellPlaces(m_windows[other]);
        else
            tellPlace(other);
    }
}

void EditorWindowSet::updateVisible()
{
    const bool visible = m_main->isVisible() && !m_main->isMinimized();
    if (std::exchange(m_visible, visible) != visible)
        Q_EMIT visibilityChanged(visible);
}

void EditorWindowSet::updateTitle()
{
    QString title = m_context.text(m_descriptions[mainKey()].title);
    if (m_project->isOpen())
        title = QStringLiteral("%1[*] \u2013 %2").arg(m_project->name(), title);
    m_main->setWindowTitle(title);
    m_main->setWindowModified(m_project->isOpen() && m_project->isModified());
}

void EditorWindowSet::tellState(const QString &key, const char *state)
{
    Q_EMIT happened({QStringLiteral("windowState"), key, QString::fromLatin1(state), key});
}

bool EditorWindowSet::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (auto *widget = qobject_cast<QWidget *>(watched); widget != nullptr && widget->window() != m_popup)
            hidePopup();
        break;
    case QEvent::KeyPress:
        if (m_popup != nullptr && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            hidePopup();
            return true;
        }
        break;
    case QEvent::Move:
        if (auto *window = qobject_cast<EditorWindow *>(watched);
            window != nullptr && m_stack.contains(window->key()))
            tellPlaces(window);
        break;
    case QEvent::WindowStateChange:
    case QEvent::Show:
    case QEvent::Hide:
        if (watched == m_main.get())
            updateVisible();
        break;
    default:
        break;
    }
    return EditorWindows::eventFilter(watched, event);
}
