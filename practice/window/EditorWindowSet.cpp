#include "window/EditorWindowSet.h"

#include "window/WindowAccess.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QWindow>

#include <utility>

namespace {

using Kind = WindowDescription::Kind;

/// Says that @p window belongs to the one that opens it. Else it belongs to the main window, and that is what
/// many a window manager would give the keyboard to when it closes, past what else is open.
void standAbove(QWidget *window, const QWidget *opener)
{
    if (window->winId() != 0) { // which makes it known to the window system
        window->windowHandle()->setTransientParent(opener->window()->windowHandle());
    }
}

} // namespace

std::unique_ptr<EditorWindowSet> EditorWindowSet::create(const QString &locale, QStringList *errors,
                                                         const QString &folder)
{
    makeWindowsAccessible();
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
    , m_frame(std::move(windows.frame))
    , m_main(windows.main)
    , m_windows(std::move(windows.byName))
    , m_block(m_frame.get())
    , m_places(&m_ground.descriptions, m_frame.get(), &m_popup, &m_windows)
{
    for (EditorWindow *window : qAsConst(m_windows)) {
        wire(window);
    }
    wireEditor();
    setView({&m_ground.descriptions, m_ground.project.get(),
             [this](const QString &key) { return window(key); }, [this] { return m_popup.window(); },
             &m_stack, m_ground.locale},
            [this](const QString &name, const QPoint &position) { showPopup(name, position); });
    qApp->installEventFilter(this);
    updateTitle();
}

EditorWindowSet::~EditorWindowSet()
{
    // The windows hide while they go away, which is nothing to tell any more.
    qApp->removeEventFilter(this);
}

void EditorWindowSet::wireEditor()
{
    connect(m_frame.get(), &MainFrame::closeRequested, this,
            [this] { onCloseRequested(WindowBuilder::mainKey()); });
    connect(m_main, &EditorWindow::laidOut, this, [this] {
        if (m_main->isVisible()) {
            m_places.forgetTold();
            m_places.tell(m_main);
        }
    });
    connect(&m_popup, &OpenPopup::closed, this, [this] { Q_EMIT popped(OpenPopup::stackEntry()); });
    connect(&m_popup, &OpenPopup::abandoned, this, &EditorWindows::popupAbandoned);
    connect(&m_places, &WindowPlaces::moved, this, &EditorWindows::moved);
    connect(&m_places, &WindowPlaces::controlMoved, this, &EditorWindows::controlMoved);
    connect(m_ground.project.get(), &Project::changed, this, &EditorWindowSet::updateTitle);
    connect(m_ground.project.get(), &Project::left, this, &EditorWindows::projectLeft);
    connect(m_ground.project.get(), &Project::created, this, &EditorWindows::projectCreated);
    connect(m_ground.project.get(), &Project::failed, this, &EditorWindows::problemFound);
}

void EditorWindowSet::wire(EditorWindow *window)
{
    connect(
        window, &EditorWindow::happened, this,
        [this, window](const QString &type, const QString &target, const QString &value,
                       const ControlSpot &cause) {
            const QString key = m_ground.descriptions.contains(window->key())
                                    ? window->key()
                                    : m_ground.descriptions.popupKey();
            const QString owner = windowOf(key);
            Q_EMIT happened({type, target, value, key, toldSpot(cause), owner == key ? QString() : owner});
        });
    connect(window, &EditorWindow::asked, this,
            [this, window](const ControlAction &action, const QPoint &position, const ControlSpot &cause) {
                if (action.popup.isEmpty()) {
                    Q_EMIT used(toldSpot(cause));
                }
                onAsked(window, action, position, cause);
            });
    connect(window, &EditorWindow::leaveAsked, this,
            [this, window](const ControlAction &action, const QPoint &position, const ControlSpot &cause) {
                askToLeave(window,
                           [window, action, position, cause] { window->carryOut(action, position, cause); });
            });
    connect(window, &EditorWindow::closeRequested, this, [this, window] { onCloseRequested(window->key()); });
}

bool EditorWindowSet::open(const QString &windowKey)
{
    m_secondClick.end();
    return openWith(windowKey, {});
}

bool EditorWindowSet::openWith(const QString &windowKey, const ControlAction &action)
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
    m_popup.close();
    if (m_stack.contains(windowKey)) {
        window->window()->raise();
        window->activateWindow();
        return true;
    }
    m_places.place(window);
    Drafts &drafts = m_ground.project->drafts();
    window->setLayer(description.isDraft ? drafts.begin() : drafts.top(), description.isDraft);
    for (const QString &command : action.begin) {
        window->run(command, action.entry);
    }
    if (description.isDraft) {
        // An entry that the window has begun with goes with Cancel.
        drafts.forgetHistory();
    }
    if (!m_stack.isEmpty()) {
        standAbove(window, m_windows[m_stack.last()]);
    }
    window->window()->show();
    window->activateWindow();
    window->focusFirst();
    m_stack.append(windowKey);
    setTop(window);
    Q_EMIT pushed(windowKey);
    m_places.forgetTold();
    m_places.tell(window);
    tellState(windowKey, "open");
    return true;
}

void EditorWindowSet::close(const QString &windowKey)
{
    if (windowKey == OpenPopup::stackEntry() || windowKey == m_ground.descriptions.popupKey()) {
        m_popup.close();
        return;
    }
    // What stands above a window belongs to it and goes with it.
    while (m_stack.contains(windowKey)) {
        closeTop();
    }
}

void EditorWindowSet::closeTop()
{
    m_popup.close();
    m_question.takeBack();
    const QString key = m_stack.takeLast();
    EditorWindow *window = m_windows[key];
    window->window()->hide();
    if (m_ground.descriptions[key].isDraft) {
        m_ground.project->drafts().drop(&window->layer());
    }
    window->setLayer(&m_ground.project->files());
    EditorWindow *const top = m_stack.isEmpty() ? nullptr : m_windows[m_stack.last()];
    setTop(top);
    if (top != nullptr) {
        top->activateWindow();
    }
    Q_EMIT popped(key);
    tellState(key, "close");
}

void EditorWindowSet::takeFocusBack()
{
    // With some window managers the focus is back before anybody hears that it was gone.
    m_popup.abandon();
    GuidedWindows::takeFocusBack();
}

void EditorWindowSet::setTop(EditorWindow *window)
{
    m_block.setTop(window);
    for (EditorWindow *other : qAsConst(m_windows)) {
        const bool isBlocked = m_block.blocks(other);
        if (other->isBlocked() != isBlocked) {
            other->setBlocked(isBlocked);
            tellOfBlocking(other);
        }
    }
    if (window != nullptr) {
        tellOfBlocking(window);
    }
}

QStringList EditorWindowSet::openWindows() const
{
    return m_popup.window() != nullptr ? m_stack + QStringList{OpenPopup::stackEntry()} : m_stack;
}

QString EditorWindowSet::title(const QString &windowKey) const
{
    if (!m_ground.descriptions.contains(windowKey)) {
        return {};
    }
    return m_ground.descriptions[windowKey].title.value(m_ground.locale);
}

void EditorWindowSet::setProjectsFolder(const QString &folder)
{
    m_ground.project->setProjectsFolder(folder);
}

void EditorWindowSet::setPlayer(const PlayWords::Play &play)
{
    m_ground.project->setPlayer(play);
}

void EditorWindowSet::setSoundListener(SoundListener *listener)
{
    m_ground.project->setSoundListener(listener);
}

void EditorWindowSet::play()
{
    m_ground.project->run(QStringLiteral("play.project"), m_ground.project->files());
}

void EditorWindowSet::tellPlayed()
{
    Q_EMIT happened({QStringLiteral("action"), QStringLiteral("play"), QStringLiteral("close"), QString()});
}

bool EditorWindowSet::replaceFiles(const QMap<QString, QString> &files)
{
    return m_ground.project->replaceFiles(files);
}

EditorWindow *EditorWindowSet::window(const QString &keyOrPopup) const
{
    return m_windows.value(keyOrPopup);
}

ControlSpot EditorWindowSet::toldSpot(const ControlSpot &spot) const
{
    if (spot.windowKey.isEmpty() || m_ground.descriptions.contains(spot.windowKey)) {
        return spot;
    }
    return {m_ground.descriptions.popupKey(), spot.windowKey + QLatin1Char('/') + spot.control, spot.part};
}

void EditorWindowSet::onAsked(EditorWindow *window, const ControlAction &action, const QPoint &position,
                              const ControlSpot &cause)
{
    const QScopedValueRollback<ControlSpot> now(m_cause, toldSpot(cause));
    if (action.close || !action.open.isEmpty() || m_popup.window() == window) {
        m_secondClick.begin();
    }
    m_popup.close();
    if (action.close) {
        close(window->key());
    }
    if (!action.open.isEmpty()) {
        openWith(action.open, action);
    }
    if (!action.popup.isEmpty()) {
        showPopup(action.popup, position);
    }
}

void EditorWindowSet::onCloseRequested(const QString &key)
{
    EditorWindow *const window = m_windows[key];
    if (window->hasTimedAction() || m_block.blocks(window) || m_secondClick.isOnFrame()) {
        return;
    }
    if (key != WindowBuilder::mainKey()) {
        const QScopedValueRollback<ControlSpot> now(m_cause, {key, ControlSpot::dismiss()});
        close(key);
        return;
    }
    askToLeave(window, [this, key] {
        const QScopedValueRollback<ControlSpot> now(m_cause, {key, ControlSpot::dismiss()});
        close(key);
        Q_EMIT mainWindowClosed();
    });
}

void EditorWindowSet::askToLeave(EditorWindow *window, const std::function<void()> &leave)
{
    Project *const project = m_ground.project.get();
    if (m_isUnattended || !project->isModified()) {
        leave();
        return;
    }
    const auto save = [project, leave] {
        project->run(QStringLiteral("project.save"), project->files());
        if (!project->isModified()) {
            leave();
        }
    };
    m_question.ask(window, project->name(), save, leave);
}

void EditorWindowSet::showPopup(const QString &name, const QPoint &position)
{
    EditorWindow *const popup = m_windows[name];
    m_popup.open(popup, m_places.popupCorner(position, popup->size()));
    Q_EMIT pushed(OpenPopup::stackEntry());
    m_places.tellPopup();
    Q_EMIT happened({QStringLiteral("popup"), name, QString(), m_ground.descriptions.popupKey(), m_cause});
}

void EditorWindowSet::updateVisible()
{
    const bool visible = m_frame->isVisible() && !m_frame->isMinimized();
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
    m_frame->setWindowTitle(title);
    m_frame->setWindowModified(m_ground.project->isOpen() && m_ground.project->isModified());
}

void EditorWindowSet::tellState(const QString &key, const char *state)
{
    Q_EMIT happened({QStringLiteral("windowState"), key, QString::fromLatin1(state), key, m_cause});
}

bool EditorWindowSet::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
        if (watched == m_frame.get() || watched == m_main) {
            m_places.tell(m_main);
        } else if (auto *window = qobject_cast<EditorWindow *>(watched);
                   window != nullptr && m_stack.contains(window->key())) {
            m_places.tell(window);
        }
        break;
    case QEvent::WindowStateChange:
    case QEvent::Show:
    case QEvent::Hide:
        if (watched == m_frame.get()) {
            updateVisible();
        }
        break;
    default:
        break;
    }
    return GuidedWindows::eventFilter(watched, event);
}
