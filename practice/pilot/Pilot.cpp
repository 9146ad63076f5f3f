#include "pilot/Pilot.h"

#include "host/LessonSession.h"
#include "pilot/Placement.h"

#include <QDir>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QStyleHints>
#include <QWindow>

namespace {

using Type = Condition::Type;

constexpr int kTickMs = 60;
// Longer than the companion's own tick: what has not moved for this long is at rest.
constexpr int kRestMs = 110;
// Small enough, and fast: Qt takes 0 to 100 from smallest to uncompressed.
constexpr int kFastPng = 75;
// Only what is broken takes this long, so that a machine with much else to do breaks no lesson.
constexpr int kToolMs = 30000;
constexpr int kSettleMs = 30000;
constexpr int kConditionMs = 20000;
constexpr int kWaitMs = 30000;
// Two clicks that shall not be taken for one double click.
constexpr int kBetweenClicksMs = 500;

QString number(int value)
{
    return QString::number(value);
}

QStringList moveTo(const QPoint &spot)
{
    return {QStringLiteral("mousemove"), number(spot.x()), number(spot.y())};
}

QString mouseAction(const QString &icon)
{
    if (icon == QLatin1String("doubleClick")) {
        return QStringLiteral("click --repeat 2 --delay 60 1");
    }
    if (icon == QLatin1String("rightClick")) {
        return QStringLiteral("click 3");
    }
    if (icon == QLatin1String("click") || icon == QLatin1String("keyboard")) {
        return QStringLiteral("click 1");
    }
    return {};
}

bool endsWithButton(const Step &step)
{
    return step.condition.type() == Type::kNext || step.condition.type() == Type::kYesNo;
}

int limitMs(const Step &step)
{
    if (step.condition.type() == Type::kWait) {
        return step.condition.waitMs() + kConditionMs;
    }
    return step.icon == QLatin1String("wait") ? kWaitMs : kConditionMs;
}

} // namespace

Pilot::Pilot(LessonSession *session, const Settings &settings, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_settings(settings)
{
    m_ticks.setInterval(kTickMs);
    connect(&m_ticks, &QTimer::timeout, this, &Pilot::tick);
    connect(session, &LessonSession::started, this, [this] {
        m_sinceStart.start();
        m_ticks.start();
    });
    connect(session, &LessonSession::stepReached, this, &Pilot::onStepReached);
    connect(session, &LessonSession::finished, this, &Pilot::onFinished);
    connect(session, &LessonSession::refused, this, [this] {
        fail(QStringLiteral("the companion does not hand it over; has it a file of that lesson?"));
    });
    connect(session, &LessonSession::problemFound, this, &Pilot::fail);
}

void Pilot::fail(const QString &reason)
{
    if (m_phase == Phase::kOver) {
        return;
    }
    m_phase = Phase::kOver;
    m_ticks.stop();
    if (!m_settings.shotsFolder.isEmpty() && m_sinceStart.isValid()) {
        takeShot(QStringLiteral("broken"));
    }
    Q_EMIT ended(QStringLiteral("%1 is broken: %2").arg(m_settings.title, reason));
}

void Pilot::onStepReached()
{
    if (m_phase == Phase::kOver) {
        return;
    }
    if (!m_current.isEmpty()) {
        Q_EMIT progress(m_current + QStringLiteral(" ok"));
    }
    m_current = stepText();
    ++m_steps;
    m_phase = Phase::kWatching;
    m_sincePhase.start();
    m_sinceMoved.start();
    m_seen = {};
    m_actions.clear();
    m_done.clear();
}

void Pilot::onFinished()
{
    if (m_phase == Phase::kOver) {
        return;
    }
    Q_EMIT progress(m_current + QStringLiteral(" ok"));
    m_phase = Phase::kEnding;
    m_sincePhase.start();
}

void Pilot::watchEnd()
{
    const std::optional<OverlayWatch> seen = look();
    if (!seen || seen->bubble || !seen->buttons.isEmpty()) {
        if (m_sincePhase.hasExpired(kSettleMs)) {
            fail(QStringLiteral("the bubble or its buttons stay on the screen after the last step"));
        }
        return;
    }
    if (!m_settings.shotsFolder.isEmpty() && !takeShot(QStringLiteral("end"))) {
        return;
    }
    m_phase = Phase::kOver;
    m_ticks.stop();
    Q_EMIT progress(QStringLiteral("%1: played to its end, %2 steps in %3 s")
                        .arg(m_settings.title)
                        .arg(m_steps)
                        .arg((m_sinceStart.elapsed() + 500) / 1000));
    Q_EMIT ended(QString());
}

void Pilot::tick()
{
    if (m_phase == Phase::kEnding) {
        watchEnd();
        return;
    }
    if (!m_session->runner().isRunning()) {
        return;
    }
    switch (m_phase) {
    case Phase::kWatching:
        watch();
        break;
    case Phase::kActing:
        actOnce();
        break;
    case Phase::kAwaiting:
        if (m_sincePhase.hasExpired(limitMs(m_session->runner().step()))) {
            fail(QStringLiteral("%1: the condition does not come true after %2").arg(m_current, m_done));
        }
        break;
    case Phase::kIdle:
    case Phase::kEnding:
    case Phase::kOver:
        break;
    }
}

void Pilot::watch()
{
    const Step &step = m_session->runner().step();
    if (m_sincePhase.hasExpired(kSettleMs)) {
        fail(QStringLiteral(
                 "%1: the bubble does not come to rest where the step points, or its buttons do not show")
                 .arg(m_current));
        return;
    }
    const std::optional<OverlayWatch> seen = look();
    if (!seen) {
        return;
    }
    if (!(*seen == m_seen)) {
        m_sinceMoved.start();
    }
    m_seen = *seen;
    if (!m_sinceMoved.hasExpired(kRestMs) || !m_sincePhase.hasExpired(kRestMs) || !settled(step) ||
        (m_sinceClick.isValid() && !m_sinceClick.hasExpired(kBetweenClicksMs))) {
        return;
    }
    std::optional<QPoint> spot;
    if (const std::optional<QPoint> target = m_session->bubbleTarget()) {
        spot = arrowSpot(m_seen.bubble->topLeft(), *target);
    }
    if (spot && !windowAt(*spot)) {
        return;
    }
    if (!m_settings.shotsFolder.isEmpty() && !takeShot(QStringLiteral("id%1").arg(step.id))) {
        return;
    }
    planAction(step, spot);
    m_phase = Phase::kActing;
    m_sincePhase.start();
}

std::optional<OverlayWatch> Pilot::look()
{
    QByteArray geometries;
    QByteArray errors;
    // No window at all is no failure here: it may be still to come.
    run(QStringLiteral("xdotool"),
        {QStringLiteral("search"), QStringLiteral("--all"), QStringLiteral("--onlyvisible"),
         QStringLiteral("--pid"), QString::number(m_pid), QStringLiteral("--name"), QString(),
         QStringLiteral("getwindowgeometry"), QStringLiteral("--shell"), QStringLiteral("%@")},
        &geometries, &errors);
    // The search ends in the middle when any window goes away under it.
    if (errors.contains("X Error")) {
        return {};
    }
    return OverlayWatch::parse(geometries);
}

bool Pilot::settled(const Step &step) const
{
    const int buttons =
        step.condition.type() == Type::kNext ? 1 : (step.condition.type() == Type::kYesNo ? 2 : 0);
    if (!m_seen.bubble || m_seen.buttons.size() != buttons) {
        return false;
    }
    // A step that points into a window has to find that window open.
    if (step.hasPosition() && !m_session->bubbleTarget()) {
        return false;
    }
    const std::optional<QPoint> place = m_session->bubblePlace();
    return !place || arrowSpot(m_seen.bubble->topLeft(), *place).has_value();
}

QWindow *Pilot::windowAt(const QPoint &spot)
{
    // As the X server has it: nothing while a window is still to be mapped or another program's is above.
    QWindow *const window = QGuiApplication::topLevelAt(spot);
    QWindow *const modal = QGuiApplication::modalWindow();
    const bool isBlocked = modal != nullptr && window != modal && window == modal->transientParent();
    return isBlocked ? nullptr : window;
}

void Pilot::planAction(const Step &step, const std::optional<QPoint> &spot)
{
    const QString mouse = mouseAction(step.icon);
    m_actions.clear();
    m_done.clear();
    m_spot = spot.value_or(QPoint());
    if (spot && !mouse.isEmpty()) {
        m_done = QStringLiteral("a %1 at (%2, %3)").arg(step.icon).arg(spot->x()).arg(spot->y());
        m_actions.enqueue(moveTo(*spot) + mouse.split(QLatin1Char(' ')));
        if (step.icon == QLatin1String("keyboard")) {
            planKeys(step);
        }
    }
    if (endsWithButton(step)) {
        m_actions.enqueue({});
    }
    if (m_actions.isEmpty()) {
        m_done = QStringLiteral("reading and waiting");
    }
}

void Pilot::planKeys(const Step &step)
{
    QString text = QStringLiteral("Village");
    if (step.condition.type() == Type::kSpinBox) {
        // The unit stands in the box already.
        text = step.condition.value().section(QLatin1Char(' '), 0, 0);
    } else if (step.condition.type() == Type::kTextLength) {
        text = QString(qMax(1, step.condition.value().toInt()), QLatin1Char('a'));
    }
    m_actions.enqueue({QStringLiteral("key"), QStringLiteral("ctrl+a")});
    m_actions.enqueue({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("12"), text});
    m_done += QStringLiteral(", typing \"%1\"").arg(text);
    if (!endsWithButton(step) && step.condition.type() != Type::kTextLength) {
        m_actions.enqueue({QStringLiteral("key"), QStringLiteral("Return")});
        m_done += QStringLiteral(" and Return");
    }
}

void Pilot::actOnce()
{
    const bool typesNext = !m_actions.isEmpty() && (m_actions.head().value(0) == QLatin1String("key") ||
                                                    m_actions.head().value(0) == QLatin1String("type"));
    if (typesNext && !hasFocus()) {
        if (m_sincePhase.hasExpired(kSettleMs)) {
            fail(QStringLiteral("%1: the window does not get the focus after %2").arg(m_current, m_done));
        }
        return;
    }
    if (m_actions.size() <= 1) {
        m_phase = Phase::kAwaiting;
        m_sincePhase.start();
    }
    if (m_actions.isEmpty()) {
        return;
    }
    const QStringList action = m_actions.dequeue();
    if (action.isEmpty()) {
        pressButton();
        return;
    }
    QElapsedTimer clock;
    clock.start();
    if (!run(QStringLiteral("xdotool"), action)) {
        fail(QStringLiteral("%1: xdotool %2 failed").arg(m_current, action.join(QLatin1Char(' '))));
        return;
    }
    if (action.contains(QStringLiteral("click"))) {
        m_sinceClick.start();
    }
    if (action.contains(QStringLiteral("--repeat")) &&
        clock.hasExpired(QGuiApplication::styleHints()->mouseDoubleClickInterval())) {
        // It may have been two clicks. If it was a double click, the next step is reached before the next
        // tick.
        m_phase = Phase::kWatching;
        m_sincePhase.start();
    }
}

bool Pilot::hasFocus() const
{
    return QGuiApplication::focusWindow() != nullptr && QGuiApplication::focusWindow() == windowAt(m_spot);
}

void Pilot::pressButton()
{
    // Next, or Yes on the left, whose right edge lies below No.
    const bool isYesNo = m_session->runner().step().condition.type() == Type::kYesNo;
    const OverlayWatch::Button button =
        isYesNo && !m_settings.answersYes ? m_seen.buttons.constLast() : m_seen.buttons.constFirst();
    const QPoint inside(button.rect.width() / 3, button.rect.height() / 2);
    const QPoint spot = button.rect.topLeft() + inside;
    m_done += QStringLiteral("%1 a click on the button at (%2, %3)")
                  .arg(m_done.isEmpty() ? QString() : QStringLiteral(" and"))
                  .arg(spot.x())
                  .arg(spot.y());
    // A place inside of the window: it moves once more when its companion comes to lay out the hint only now.
    if (!run(QStringLiteral("xdotool"),
             {QStringLiteral("mousemove"), QStringLiteral("--window"), QString::number(button.window),
              number(inside.x()), number(inside.y()), QStringLiteral("click"), QStringLiteral("1")})) {
        fail(QStringLiteral("%1: xdotool failed").arg(m_current));
    }
    m_sinceClick.start();
}

bool Pilot::run(const QString &program, const QStringList &arguments, QByteArray *output, QByteArray *errors)
{
    QProcess process;
    process.start(program, arguments, QIODevice::ReadOnly);
    if (!process.waitForFinished(kToolMs)) {
        return false;
    }
    if (output != nullptr) {
        *output = process.readAllStandardOutput();
    }
    if (errors != nullptr) {
        *errors = process.readAllStandardError();
    }
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool Pilot::takeShot(const QString &name)
{
    const QString path =
        QDir(m_settings.shotsFolder)
            .filePath(QStringLiteral("%1-%2.png").arg(++m_shots, 3, 10, QLatin1Char('0')).arg(name));
    // Window 0 is the screen as the person sees it, the companion's windows included.
    if (QDir().mkpath(m_settings.shotsFolder) &&
        QGuiApplication::primaryScreen()->grabWindow(0).save(path, "PNG", kFastPng)) {
        return true;
    }
    fail(QStringLiteral("the picture \"%1\" cannot be written: is the folder writable?").arg(path));
    return false;
}

QString Pilot::stepText() const
{
    const ScenarioRunner &runner = m_session->runner();
    const Step &step = runner.step();
    return QStringLiteral("step %1/%2 id %3 %4 %5")
        .arg(runner.index() + 1)
        .arg(runner.scenario().size())
        .arg(step.id)
        .arg(step.windowKey.isEmpty() ? QStringLiteral("-") : step.windowKey, step.conditionText);
}
