#include "pilot/Pilot.h"

#include "host/LessonSession.h"

#include <QDir>

namespace {

constexpr int kTickMs = 60;
// Longer than the companion's own tick: what has not moved for this long is at rest.
constexpr int kRestMs = 110;
// Two clicks that shall not be taken for one double click.
constexpr int kBetweenClicksMs = 500;

} // namespace

Pilot::Pilot(const LessonSession *session, const Settings &settings, std::unique_ptr<Eye> eye,
             std::unique_ptr<Hand> hand, QObject *parent)
    : QObject(parent)
    , m_session(session)
    , m_settings(settings)
    , m_eye(std::move(eye))
    , m_hand(std::move(hand))
{
    m_ticks.setInterval(kTickMs);
    m_limit.setSingleShot(true);
    connect(&m_ticks, &QTimer::timeout, this, &Pilot::onTick);
    connect(&m_limit, &QTimer::timeout, this, &Pilot::onLimit);
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
    QString text = QStringLiteral("%1 is broken: %2").arg(m_settings.title, reason);
    if (m_sinceStart.isValid() && !takeShot(QStringLiteral("broken"))) {
        text += QStringLiteral("\n") + shotProblem();
    }
    end(text);
}

void Pilot::end(const QString &failure)
{
    m_phase = Phase::kOver;
    m_ticks.stop();
    m_limit.stop();
    Q_EMIT ended(failure);
}

void Pilot::enter(Phase phase, int limitMs)
{
    m_phase = phase;
    m_limit.start(limitMs);
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
    // So that what is there at the first look counts as just come.
    m_seen = {};
    m_sinceMoved.start();
    enter(Phase::kWatching, m_settings.settleMs);
}

void Pilot::onFinished()
{
    if (m_phase == Phase::kOver) {
        return;
    }
    Q_EMIT progress(m_current + QStringLiteral(" ok"));
    enter(Phase::kEnding, m_settings.settleMs);
}

void Pilot::onTick()
{
    switch (m_phase) {
    case Phase::kWatching:
        watch();
        break;
    case Phase::kActing:
        act();
        break;
    case Phase::kEnding:
        watchEnd();
        break;
    case Phase::kIdle:
    case Phase::kAwaiting:
    case Phase::kOver:
        break;
    }
}

void Pilot::onLimit()
{
    const QString done =
        m_done.isEmpty() ? QStringLiteral("reading and waiting") : m_done.join(QStringLiteral(", "));
    switch (m_phase) {
    case Phase::kWatching:
        fail(QStringLiteral(
                 "%1: the bubble does not come to rest where the step points, or its buttons do not show")
                 .arg(m_current));
        break;
    case Phase::kActing:
        fail(QStringLiteral("%1: the window does not get the focus after %2").arg(m_current, done));
        break;
    case Phase::kAwaiting:
        fail(QStringLiteral("%1: the condition does not come true after %2").arg(m_current, done));
        break;
    case Phase::kEnding:
        fail(QStringLiteral("the bubble or its buttons stay on the screen after the last step"));
        break;
    case Phase::kIdle:
    case Phase::kOver:
        break;
    }
}

bool Pilot::isAtRest()
{
    const std::optional<SeenOverlays> seen = m_eye->overlays();
    if (!seen) {
        return false;
    }
    if (*seen != m_seen) {
        m_sinceMoved.start();
    }
    m_seen = *seen;
    return m_sinceMoved.hasExpired(kRestMs);
}

void Pilot::watch()
{
    if (!m_session->runner().isRunning() || !isAtRest() ||
        (m_sinceClick.isValid() && !m_sinceClick.hasExpired(kBetweenClicksMs))) {
        return;
    }
    const Step &step = m_session->runner().step();
    const std::optional<ActionPlan> plan = ActionPlan::make(
        step, {m_seen, m_session->bubblePlace(), m_session->lacksWindow()}, m_settings.answersYes);
    if (!plan || (plan->spot && !m_eye->takesClickAt(*plan->spot))) {
        return;
    }
    if (!takeShot(QStringLiteral("id%1").arg(step.id))) {
        fail(shotProblem());
        return;
    }
    m_plan = *plan;
    m_next = 0;
    m_done.clear();
    enter(Phase::kActing, m_settings.settleMs);
    act();
}

void Pilot::act()
{
    if (m_next == m_plan.actions.size()) {
        enter(Phase::kAwaiting, m_settings.conditionMs + m_plan.waitMs);
        return;
    }
    const Action &action = m_plan.actions.at(m_next);
    if (action.isOfKeyboard() && !m_eye->takesKeysAt(*m_plan.spot)) {
        return;
    }
    if (!action.isOfKeyboard()) {
        m_sinceClick.start();
    }
    switch (m_hand->perform(action)) {
    case Hand::Result::kDone:
        m_done.append(action.inWords());
        ++m_next;
        break;
    case Hand::Result::kMissed:
        // If it was a double click after all, the next step is reached before the next look.
        enter(Phase::kWatching, m_settings.settleMs);
        break;
    case Hand::Result::kImpossible:
        fail(QStringLiteral("%1: %2 cannot be done: the keyboard lacks a key for it")
                 .arg(m_current, action.inWords()));
        break;
    }
}

void Pilot::watchEnd()
{
    if (!isAtRest() || m_seen != SeenOverlays()) {
        return;
    }
    if (!takeShot(QStringLiteral("end"))) {
        fail(shotProblem());
        return;
    }
    Q_EMIT progress(QStringLiteral("%1: played to its end, %2 steps in %3 s")
                        .arg(m_settings.title)
                        .arg(m_steps)
                        .arg((m_sinceStart.elapsed() + 500) / 1000));
    end(QString());
}

bool Pilot::takeShot(const QString &name)
{
    if (m_settings.shotsFolder.isEmpty()) {
        return true;
    }
    const QString file = QStringLiteral("%1-%2.png").arg(++m_shots, 3, 10, QLatin1Char('0')).arg(name);
    return QDir().mkpath(m_settings.shotsFolder) &&
           m_eye->takePicture(QDir(m_settings.shotsFolder).filePath(file));
}

QString Pilot::shotProblem() const
{
    return QStringLiteral(
               "no picture can be written to \"%1\": is the folder writable, and has the disk room?")
        .arg(m_settings.shotsFolder);
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
