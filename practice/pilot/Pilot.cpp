#include "pilot/Pilot.h"

#include "host/LessonSession.h"
#include "lesson/QuotedRow.h"
#include "pilot/Mistake.h"

#include <QDir>

namespace {

constexpr int kTickMs = 60;
// Longer than the companion's own tick: what has not moved for this long is at rest.
constexpr int kRestMs = 110;
// Two clicks that nobody shall take for one double click, nor the second for a slip of the first.
constexpr int kBetweenClicksMs = 500;
// Clicks farther apart than this, in pixels, are no double click.
constexpr int kSameSpot = 10;
// The editor has seen what was done by then, in milliseconds of the X server's clock.
constexpr int kSeenMs = 150;
// So often a beginner, or whoever cannot know, does again what came to nothing, and waits so long for it.
constexpr int kMostTries = 3;
constexpr int kTryMs = 2000;
// So many ways back are gone in one step before something must be wrong with them.
constexpr int kMostReturns = 20;
// What is only slow has come by then: a press that comes twice passes two steps.
constexpr int kPressTryMs = 8000;

QString orNothing(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("nothing") : text;
}

} // namespace

Pilot::Pilot(LessonSession *session, const Settings &settings, std::unique_ptr<Eye> eye,
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
    connect(session, &LessonSession::started, this, [this] { m_ticks.start(); });
    connect(session, &LessonSession::stepReached, this, &Pilot::onStepReached);
    connect(session, &LessonSession::finished, this, &Pilot::onFinished);
    connect(session, &LessonSession::nextArrived, this, [this] { m_sinceHeard.start(); });
    connect(session, &LessonSession::refused, this, [this] {
        // On a fast clock it may still come.
        if (m_phase == Phase::kIdle) {
            m_limit.start(LessonSession::kHandOverMs * (m_settings.speed - 1) + 1);
        }
    });
    connect(session, &LessonSession::problemFound, this, &Pilot::fail);
}

void Pilot::fail(const QString &reason)
{
    if (m_phase == Phase::kOver) {
        return;
    }
    QString text = QStringLiteral("%1: broken: %2").arg(m_settings.title, reason);
    if (m_phase != Phase::kIdle) {
        text += QStringLiteral("; ") + evidence();
    }
    m_failures.append(text);
    end();
}

void Pilot::end()
{
    m_phase = Phase::kOver;
    m_ticks.stop();
    m_limit.stop();
    Q_EMIT ended(m_failures);
}

void Pilot::enter(Phase phase, int limitMs)
{
    m_phase = phase;
    m_limit.start(limitMs * m_settings.speed);
}

void Pilot::onStepReached()
{
    if (m_phase == Phase::kOver) {
        return;
    }
    letGo();
    if (!m_isPassing) {
        m_brokenInARow = 0;
    }
    m_done.clear();
    const ScenarioRunner &runner = m_session->runner();
    const Step &step = runner.step();
    if (step.condition.type() == Condition::Type::kYesNo && !m_questions.contains(step.id)) {
        m_questions.append(step.id);
    }
    Q_EMIT stepReached(runner.index() + 1, runner.scenario().size(), stepText());
    m_hasErred = false;
    m_tries = 0;
    m_returns = 0;
    m_isPressLeft = false;
    m_sinceDone.invalidate();
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
    letGo();
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
    switch (m_phase) {
    case Phase::kWatching:
        breakStep(isLost() ? QStringLiteral("nothing that can be clicked leads back to the step")
                           : QStringLiteral("the bubble does not come to rest where the step points, or its "
                                            "buttons do not show"));
        break;
    case Phase::kActing:
        if (awaitsList() && triesAgain()) {
            // What the mistake had unfolded has taken the click.
            ++m_tries;
            m_sinceDone.start();
            enter(Phase::kWatching, m_settings.settleMs);
            break;
        }
        breakStep(QStringLiteral("the window does not get the focus, or another one covers the companion's "
                                 "button"));
        break;
    case Phase::kAwaiting:
        if (pressesAgain()) {
            ++m_tries;
            m_isPressLeft = true;
            Q_EMIT pressedAgain(
                QStringLiteral("%1: item %2, %3: the press of a button came to nothing and is made again; %4")
                    .arg(m_settings.title)
                    .arg(m_session->runner().step().id)
                    .arg(m_session->runner().step().conditionText, evidence()));
            enter(Phase::kWatching, m_settings.settleMs);
        } else if (triesAgain()) {
            ++m_tries;
            // What lay over it has taken the first click.
            m_sinceDone.start();
            enter(Phase::kWatching, m_settings.settleMs);
        } else {
            breakStep(QStringLiteral("the condition does not come true"));
        }
        break;
    case Phase::kEnding:
        fail(QStringLiteral("the bubble or its buttons stay on the screen after the last step"));
        break;
    case Phase::kIdle:
        Q_EMIT refused();
        fail(QStringLiteral("the companion does not hand it over; has it a file of that lesson?"));
        break;
    case Phase::kOver:
        break;
    }
}

void Pilot::breakStep(const QString &why)
{
    const ScenarioRunner &runner = m_session->runner();
    if (!runner.isRunning()) {
        fail(why);
        return;
    }
    const Step &step = runner.step();
    m_failures.append(QStringLiteral("%1: item %2, %3: %4; %5")
                          .arg(m_settings.title)
                          .arg(step.id)
                          .arg(step.conditionText, why, evidence()));
    if (++m_brokenInARow == kMostInARow) {
        m_failures.append(QStringLiteral("%1: given up after %2 broken steps in a row")
                              .arg(m_settings.title)
                              .arg(kMostInARow));
        end();
        return;
    }
    m_isPassing = true;
    m_session->skipStep();
    m_isPassing = false;
}

QString Pilot::evidence()
{
    m_seen = m_eye->overlays().value_or(m_seen);
    QString text =
        QStringLiteral("done: %1; seen: %2, windows: %3")
            .arg(orNothing(m_done.join(QStringLiteral(", "))), m_seen.inWords(), orNothing(m_eye->windows()));
    const QString picture = takePicture(m_session->runner().isRunning()
                                            ? QStringLiteral("id%1-broken").arg(m_session->runner().step().id)
                                            : QStringLiteral("broken"));
    if (!picture.isEmpty()) {
        text += QStringLiteral("; picture: ") + picture;
    }
    return text;
}

void Pilot::letGo()
{
    for (; m_phase == Phase::kActing && m_next < m_plan.actions.size(); ++m_next) {
        const Action &action = m_plan.actions.at(m_next);
        if (action.kind == Action::Kind::kRelease) {
            [[maybe_unused]] const Hand::Result result = m_hand->perform(action);
        }
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

std::optional<QPoint> Pilot::mousePlace(const Action &action) const
{
    if (action.kind != Action::Kind::kPressButton) {
        return action.isOfKeyboard() ? std::optional<QPoint>() : action.place;
    }
    for (const SeenOverlays::Window &button : m_seen.buttons) {
        if (button.id == action.window) {
            return button.rect.topLeft() + action.place;
        }
    }
    return {};
}

bool Pilot::isTooSoon(const ActionPlan &plan) const
{
    if (!m_sinceClick.isValid() || plan.actions.isEmpty()) {
        return false;
    }
    const std::optional<QPoint> place = mousePlace(plan.actions.constFirst());
    const bool isSameSpot = place && (*place - m_lastClick).manhattanLength() <= kSameSpot;
    // The editor counts from when it heard of the press, and a busy machine tells it late.
    const bool isHeardJust = m_sinceHeard.isValid() && !m_sinceHeard.hasExpired(kBetweenClicksMs);
    return isHeardJust || !m_sinceClick.hasExpired(kBetweenClicksMs * (isSameSpot ? m_settings.speed : 1));
}

void Pilot::watch()
{
    if (!m_session->runner().isRunning() || !isAtRest()) {
        return;
    }
    if (m_sinceDone.isValid() && !m_sinceDone.hasExpired(kSeenMs * m_settings.speed)) {
        return;
    }
    if (foldsUp()) {
        return;
    }
    std::optional<ActionPlan> plan = isLost() ? returning() : planned();
    if (plan && !isLost() && m_isPressLeft) {
        plan->actions = plan->actions.mid(plan->actions.size() - 1);
    }
    if (!plan || isTooSoon(*plan) || (plan->spot && !m_eye->takesClickAt(*plan->spot))) {
        return;
    }
    if (isLost() && ++m_returns > kMostReturns) {
        breakStep(QStringLiteral("what leads back to the step has no effect"));
    } else if (isLost()) {
        begin(*plan, Intent::kReturn);
    } else if (!err(*plan) && takeShot(QStringLiteral("id%1").arg(m_session->runner().step().id))) {
        begin(*plan, Intent::kStep);
    }
}

bool Pilot::foldsUp()
{
    const Action escape{Action::Kind::kEscape, {}, 0, {}, 0};
    const bool hasTried = !m_plan.actions.isEmpty() && m_plan.actions.constFirst().kind == escape.kind;
    if (m_intent != Intent::kMistake || hasTried || !m_eye->seesList()) {
        return false;
    }
    begin({{}, {escape}, 0}, Intent::kMistake);
    return true;
}

bool Pilot::isLost() const
{
    return m_settings.isBeginner && (m_session->isAstray() || m_session->canPutBack());
}

std::optional<ActionPlan> Pilot::planned() const
{
    const Sight sight{m_seen, m_session->bubblePlace(), m_session->lacksWindow()};
    return ActionPlan::make(m_session->runner().step(), sight, answersYes());
}

std::optional<ActionPlan> Pilot::returning() const
{
    if (m_session->canPutBack()) {
        const std::optional<QPoint> place =
            m_settings.putBackPlace ? m_settings.putBackPlace() : std::nullopt;
        if (!place) {
            return {};
        }
        return ActionPlan{place, {{Action::Kind::kClick, *place, 0, {}, 0}}, 0};
    }
    const std::optional<Way> way = m_session->wayBack();
    return way ? ActionPlan::makeReturn(way->icon, {m_seen, m_session->bubblePlace(), false}) : std::nullopt;
}

bool Pilot::err(const ActionPlan &plan)
{
    if (!m_settings.isBeginner || std::exchange(m_hasErred, true)) {
        return false;
    }
    const QVector<Action> actions = mistakeIn(plan, m_mistakes);
    const std::optional<QPoint> place = actions.isEmpty() ? std::nullopt : mousePlace(actions.constFirst());
    if (actions.isEmpty() || !(place ? m_eye->takesClickAt(*place) : canAct(actions.constFirst(), plan))) {
        return false;
    }
    ++m_mistakes;
    begin({plan.spot, actions, 0}, Intent::kMistake);
    return true;
}

void Pilot::begin(const ActionPlan &plan, Intent intent)
{
    m_plan = plan;
    m_clicksBefore.reset();
    m_intent = intent;
    m_next = 0;
    if (intent == Intent::kStep && !m_hasErred) {
        m_done.clear();
    }
    enter(Phase::kActing, m_settings.settleMs);
    act();
}

void Pilot::act()
{
    if (m_next == m_plan.actions.size()) {
        endActing();
        return;
    }
    Action action = m_plan.actions.at(m_next);
    if (!canAct(action, m_plan)) {
        return;
    }
    if (action.kind == Action::Kind::kChooseQuoted) {
        if (!m_eye->seesList()) {
            ++m_next;
            return;
        }
        action = choiceFor(action.text);
    }
    if (const std::optional<QPoint> place = mousePlace(action)) {
        m_clicksBefore = m_eye->clicksHeard();
        m_sinceClick.start();
        m_lastClick = *place;
    }
    switch (m_hand->perform(action)) {
    case Hand::Result::kDone:
        m_done.append(action.inWords());
        ++m_next;
        if (awaitsList() && triesAgain()) {
            enter(Phase::kActing, qMin(kTryMs, m_settings.settleMs));
        }
        break;
    case Hand::Result::kMissed:
        // If it was a double click after all, the next step is reached before the next look.
        enter(Phase::kWatching, m_settings.settleMs);
        break;
    case Hand::Result::kImpossible:
        breakStep(QStringLiteral("%1 cannot be done: the keyboard lacks a key for it").arg(action.inWords()));
        break;
    }
}

Action Pilot::choiceFor(const QString &hint) const
{
    const int row = quotedRow(hint, m_eye->listRows(), QString::fromLatin1(ActionPlan::kName));
    // What is chosen already stays where the list has no such row.
    return row < 0 ? Action{Action::Kind::kEscape, {}, 0, {}, 0}
                   : Action{Action::Kind::kChoose, {}, 0, {}, row};
}

bool Pilot::canAct(const Action &action, const ActionPlan &plan)
{
    if (action.kind == Action::Kind::kChoose) {
        return m_eye->seesList();
    }
    if (!action.isOfKeyboard() && action.kind != Action::Kind::kClick &&
        action.kind != Action::Kind::kPressButton) {
        return true;
    }
    // A window manager may hold a click back, and keys or a button of the companion would come before it.
    const bool isClickHeard = !m_clicksBefore || m_eye->clicksHeard() > *m_clicksBefore;
    if (action.kind == Action::Kind::kClick) {
        return isClickHeard;
    }
    if (action.kind == Action::Kind::kChooseQuoted) {
        return isClickHeard;
    }
    // A list keeps the mouse until it is gone.
    if (plan.actions.value(m_next - 1).kind == Action::Kind::kChooseQuoted && m_eye->seesList()) {
        return false;
    }
    if (action.kind == Action::Kind::kPressButton) {
        return isClickHeard && m_eye->takesPressAt(action.window, action.place);
    }
    return isClickHeard && (!action.isOfKeyboard() || !plan.spot || m_eye->takesKeysAt(*plan.spot));
}

bool Pilot::awaitsList() const
{
    return m_next < m_plan.actions.size() && m_plan.actions.at(m_next).kind == Action::Kind::kChoose;
}

bool Pilot::triesAgain() const
{
    return (m_settings.isBeginner || m_plan.canComeToNothing) && m_tries < kMostTries;
}

bool Pilot::pressesAgain() const
{
    return !m_plan.actions.isEmpty() && m_plan.actions.constLast().kind == Action::Kind::kPressButton &&
           m_tries < kMostTries;
}

int Pilot::patienceMs() const
{
    const int patience = pressesAgain() ? kPressTryMs : triesAgain() ? kTryMs : m_settings.conditionMs;
    return qMin(patience, m_settings.conditionMs) + m_plan.waitMs;
}

void Pilot::endActing()
{
    if (m_intent == Intent::kStep) {
        enter(Phase::kAwaiting, patienceMs());
    } else {
        m_sinceDone.start();
        enter(Phase::kWatching, m_settings.settleMs);
    }
}

void Pilot::watchEnd()
{
    if (isAtRest() && m_seen == SeenOverlays() && takeShot(QStringLiteral("end"))) {
        end();
    }
}

QString Pilot::takePicture(const QString &name)
{
    if (m_settings.picturesFolder.isEmpty() || !QDir().mkpath(m_settings.picturesFolder)) {
        return {};
    }
    const QString file = QStringLiteral("%1-%2.png").arg(++m_pictures, 3, 10, QLatin1Char('0')).arg(name);
    const QString path = QDir(m_settings.picturesFolder).filePath(file);
    return m_eye->takePicture(path) ? path : QString();
}

bool Pilot::takeShot(const QString &name)
{
    if (!m_settings.picturesOfAll || !takePicture(name).isEmpty()) {
        return true;
    }
    fail(QStringLiteral("no picture can be written to \"%1\": is the folder writable, and has the disk room?")
             .arg(m_settings.picturesFolder));
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

bool Pilot::answersYes() const
{
    const int question = int(m_questions.indexOf(m_session->runner().step().id));
    return m_settings.answers.at(qBound(0, question, int(m_settings.answers.size()) - 1));
}
