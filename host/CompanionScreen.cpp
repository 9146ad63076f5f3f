#include "host/CompanionScreen.h"

#include "host/HostEditor.h"
#include "lesson/LessonWords.h"

#include <utility>

CompanionScreen::CompanionScreen(HostEditor *editor, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
{
    connect(editor, &HostEditor::pushed, this,
            [this](const QString &windowKey) { Q_EMIT sends(HostCommands::windowPush(windowKey)); });
    connect(editor, &HostEditor::popped, this, [this] { Q_EMIT sends(HostCommands::windowPop()); });
    connect(editor, &HostEditor::popupAbandoned, this, &CompanionScreen::tellStackAnew);
    connect(editor, &HostEditor::moved, this, &CompanionScreen::onMoved);
    connect(editor, &HostEditor::controlMoved, this, [this](const QString &name, const QPoint &position) {
        Q_EMIT sends(HostCommands::controlPosition(name, position));
    });
    connect(editor, &HostEditor::visibilityChanged, this,
            [this](bool visible) { Q_EMIT sends(HostCommands::state(visible)); });
    connect(editor, &HostEditor::hovered, this, [this](const QString &text, const QPoint &centre) {
        Q_EMIT sends(HostCommands::showTooltip(text, centre));
    });
    connect(editor, &HostEditor::unhovered, this, &CompanionScreen::hideTooltip);
}

void CompanionScreen::start()
{
    if (std::exchange(m_hasOldTooltip, false)) {
        Q_EMIT sends(HostCommands::showTooltip(QString(), QPoint()));
    }
    m_plays = true;
    m_screen.reset();
    tellScreen();
    const QStringList keys = m_editor->openWindows();
    for (const QString &key : keys) {
        Q_EMIT sends(HostCommands::windowPush(key));
        Q_EMIT sends(HostCommands::windowPosition(key, m_editor->origin(key).value_or(QPoint())));
    }
    m_applicationSize = QSize();
    tellApplicationSize();
    moveToMiddle();
}

void CompanionScreen::stop()
{
    m_plays = false;
    Q_EMIT sends(HostCommands::stop());
}

void CompanionScreen::tell(const IndicatorUpdate &update)
{
    if (update.place) {
        m_place = update.place;
    }
    Q_EMIT sends(HostCommands::indicatorUpdate(update));
}

void CompanionScreen::move(const QPoint &place)
{
    m_place = place;
    Q_EMIT sends(HostCommands::indicatorUpdateXy(place));
}

void CompanionScreen::moveToMiddle()
{
    const QStringList keys = m_editor->openWindows();
    if (!keys.isEmpty()) {
        const QPoint origin = m_editor->origin(keys.constFirst()).value_or(QPoint());
        const QRect contents(origin, m_editor->applicationSize());
        move(contents.center() - LessonWords::kTip);
    }
}

void CompanionScreen::tellStackAnew()
{
    // Whether the companion has taken the popup off already cannot be known here: its stack is emptied, which
    // one pop too many does not harm, and told anew.
    const QStringList keys = m_editor->openWindows();
    for (int i = 0; i <= keys.size(); ++i) {
        Q_EMIT sends(HostCommands::windowPop());
    }
    for (const QString &key : keys) {
        Q_EMIT sends(HostCommands::windowPush(key));
    }
}

void CompanionScreen::onMoved(const QString &windowKey, const QPoint &origin)
{
    if (m_plays) {
        tellScreen();
    }
    Q_EMIT sends(HostCommands::windowPosition(windowKey, origin));
    tellApplicationSize();
}

void CompanionScreen::tellScreen()
{
    // While a lesson plays the companion takes nothing but the rectangle from it.
    const QRect screen = m_editor->screenRect();
    if (screen != m_screen) {
        m_screen = screen;
        Q_EMIT sends(HostCommands::start(screen));
    }
}

void CompanionScreen::tellApplicationSize()
{
    const QSize size = m_editor->applicationSize();
    if (size != m_applicationSize) {
        m_applicationSize = size;
        Q_EMIT sends(HostCommands::applicationWindowSize(size));
    }
}

void CompanionScreen::hideTooltip()
{
    // While a lesson plays, a tooltip that was hidden comes back with the time that it had left; an empty one
    // does not show.
    m_hasOldTooltip = !m_plays;
    Q_EMIT sends(m_plays ? HostCommands::showTooltip(QString(), QPoint()) : HostCommands::hideTooltip());
}
