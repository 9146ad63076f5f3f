#include "host/LessonSession.h"

#include "host/HostEditor.h"

#include <utility>

namespace {

/// Far more steps than any lesson has.
constexpr int kMostDoublings = 10;

} // namespace

LessonSession::LessonSession(HostEditor *editor, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
    , m_handOver(editor)
    , m_screen(editor)
    , m_runner([editor] { return editor->openWindows(); })
    , m_guide(editor)
    , m_bubble(editor, &m_screen, &m_runner, &m_guide)
{
    m_wait.setSingleShot(true);
    connect(&m_wait, &QTimer::timeout, this, [this] {
        m_guide.chooseAsBefore();
        m_runner.elapsed();
    });
    connectParts();
    connect(editor, &HostEditor::happened, this, &LessonSession::onHappened);
}

void LessonSession::connectParts()
{
    connect(&m_handOver, &LessonHandOver::sends, this, &LessonSession::sends);
    connect(&m_handOver, &LessonHandOver::refused, this, &LessonSession::refused);
    connect(&m_handOver, &LessonHandOver::stopped, this, &LessonSession::stopped);
    connect(&m_handOver, &LessonHandOver::problemFound, this, &LessonSession::problemFound);
    connect(&m_screen, &CompanionScreen::sends, this, &LessonSession::sends);
    connect(&m_runner, &ScenarioRunner::stepReached, this, &LessonSession::onStepReached);
    connect(&m_runner, &ScenarioRunner::commandRequested, this, &LessonSession::runCommand);
    connect(&m_runner, &ScenarioRunner::finished, this, &LessonSession::onFinished);
    connect(&m_guide, &LessonGuide::changed, this, [this] {
        m_bubble.tell();
        Q_EMIT astrayChanged();
    });
    connect(&m_guide, &LessonGuide::turned, this, &LessonSession::onTurned);
    connect(&m_guide, &LessonGuide::helpOffered, this, &LessonSession::helpOffered);
    connect(&m_bubble, &LessonBubble::told, this, &LessonSession::stepTold);
}

void LessonSession::greet(const QString &locale)
{
    Q_EMIT sends(HostCommands::fromServer(locale));
    m_handOver.begin();
}

void LessonSession::request(const QString &lessonName)
{
    stop();
    m_resumed = {};
    m_handOver.request(lessonName);
}

void LessonSession::resume(const QJsonObject &bookmark)
{
    request(LessonHistory::lessonOf(bookmark));
    m_resumed = bookmark;
}

void LessonSession::play(const QString &lessonName, const QString &scenarioText, int id)
{
    m_resumed = {};
    m_goesOn = m_runner.isRunning() && m_runner.step().id == id && m_handOver.lessonName() == lessonName;
    stopRun();
    begin(m_handOver.takeOwn(lessonName, scenarioText), id);
}

void LessonSession::stop()
{
    m_handOver.stop();
    stopRun();
}

void LessonSession::stopRun()
{
    if (m_runner.isRunning()) {
        end();
    }
}

void LessonSession::abandon()
{
    m_handOver.abandon();
    halt();
}

void LessonSession::back()
{
    if (!canGoBack()) {
        return;
    }
    LessonHistory::Visit visit = m_history.goBack();
    while (passesByItself(visit.id) && m_history.canGoBack()) {
        visit = m_history.goBack();
    }
    goBackTo(visit);
}

void LessonSession::goBackTo(const LessonHistory::Visit &visit)
{
    m_wait.stop();
    m_guide.end();
    restore(visit.start);
    m_runner.goTo(visit.id);
}

bool LessonSession::passesByItself(int id) const
{
    const Scenario &scenario = m_runner.scenario();
    const int index = scenario.indexOf(id);
    return index < 0 || scenario.step(index).icon == QLatin1String("wait") ||
           scenario.step(index).condition.type() == Condition::Type::kWait;
}

void LessonSession::putBack()
{
    if (m_guide.isLost() && canGoBack()) {
        const int lost = m_runner.step().id;
        m_lostAgain = std::exchange(m_lostIn, lost) == lost ? m_lostAgain + 1 : 0;
        LessonHistory::Visit visit = m_history.goBackToGood();
        // From there it led to the same end: what is to be done otherwise was decided before, and each time
        // it is looked for twice as far back.
        const int further = (1 << qMin(m_lostAgain, kMostDoublings)) - 1;
        for (int step = 0; step < further && m_history.canGoBack(); ++step) {
            visit = m_history.goBack();
        }
        while (further > 0 && passesByItself(visit.id) && m_history.canGoBack()) {
            visit = m_history.goBack();
        }
        goBackTo(visit);
    } else {
        restore(m_guide.start());
    }
}

void LessonSession::restore(const StepStart &start)
{
    // Of a step of an earlier run no state may be known; then things stay as they are.
    if (!start.state.isEmpty() && !m_guide.restore(start)) {
        Q_EMIT stateLost();
    }
}

void LessonSession::showMe()
{
    if (!m_runner.isRunning()) {
        return;
    }
    if (std::exchange(m_shown, true)) {
        doStep();
        return;
    }
    const std::optional<Way> &way = m_guide.wayBack();
    Q_EMIT showRequested(way ? way->by : m_guide.pointed().value_or(ControlSpot()));
    m_bubble.glideIn();
}

void LessonSession::skipStep()
{
    const int before = m_reached;
    doStep();
    if (m_reached == before) {
        m_guide.chooseAsBefore();
        m_runner.skip();
    }
}

void LessonSession::doStep()
{
    if (!m_runner.isRunning()) {
        return;
    }
    if (const std::optional<ControlUse> mend = m_guide.mendOfActivity()) {
        m_editor->perform(*mend);
    } else if (m_guide.isAstray()) {
        restore(m_guide.start());
    }
    const Step step = m_runner.step();
    const Condition::Type type = step.condition.type();
    if (type == Condition::Type::kYesNo || type == Condition::Type::kWait) {
        return; // nothing is to be done with what it points at
    }
    if (type == Condition::Type::kNext) {
        passStep();
    } else if (const std::optional<ControlSpot> pointed = m_guide.pointed()) {
        m_editor->perform(ControlUse::of(step, *pointed));
    } else if (!step.hasPosition()) {
        m_editor->perform(ControlUse::of(step, {step.windowKey, {}, -1}));
    }
}

void LessonSession::passStep()
{
    const int before = m_reached;
    if (const std::optional<ControlUse> undone = m_guide.leftUndone()) {
        for (int time = 0; time < undone->times && m_reached == before; ++time) {
            m_editor->perform(*undone);
        }
        if (undone->kind == ControlUse::Kind::kRightClick && m_reached == before) {
            // A person's menu is gone when she clicks Next.
            m_editor->perform(ControlUse::closingMenu());
        }
    }
    m_guide.chooseAsBefore();
    // What was done may have been the step behind as well.
    if (m_reached == before) {
        m_runner.next();
    }
}

void LessonSession::receive(const QString &command)
{
    using Kind = CompanionCommand::Kind;
    const CompanionCommand read = CompanionCommand::read(command);
    if (!read.problem.isEmpty()) {
        Q_EMIT problemFound(read.problem);
    }
    switch (read.kind) {
    case Kind::kStart:
        if (!m_handOver.passOver(read.text)) {
            stopRun();
            begin(m_handOver.take(read.text), read.id.value_or(-1));
        }
        break;
    case Kind::kNext:
    case Kind::kYes:
    case Kind::kNo:
        onPressed(read.kind);
        break;
    case Kind::kTutorialList: {
        QStringList names;
        for (const Lesson &lesson : read.lessons) {
            names.append(lesson.name);
        }
        if (m_handOver.takeList(names)) {
            Q_EMIT lessonsListed(read.lessons);
        }
        break;
    }
    case Kind::kFeedbackPresetData:
        if (read.problem.isEmpty()) {
            Q_EMIT filesReceived(read.files);
            m_bookmarkDue = true;
            m_guide.takeStartAnew();
        }
        break;
    case Kind::kUnknown:
    case Kind::kAlive:
    case Kind::kTutorialReady:
    case Kind::kIndicatorMoved:
        break;
    }
}

void LessonSession::onPressed(CompanionCommand::Kind button)
{
    const bool isSecond = m_pressed.isValid() && m_pressed.elapsed() < m_doublePressMs;
    if (isSecond) {
        Q_EMIT nextArrived();
        return;
    }
    m_pressed.start();
    if (button == CompanionCommand::Kind::kNext) {
        next();
    } else {
        answer(button == CompanionCommand::Kind::kYes);
    }
}

void LessonSession::next()
{
    // While what leads back is shown there is no such button; a press may be on its way.
    if (!isAstray()) {
        passStep();
    }
    Q_EMIT nextArrived();
}

void LessonSession::answer(bool yes)
{
    Q_EMIT nextArrived();
    m_guide.chooseAsBefore();
    m_runner.answer(yes);
}

void LessonSession::begin(const std::optional<Scenario> &scenario, int id)
{
    if (!scenario) {
        m_goesOn = false;
        return;
    }
    const int first = takeUp(std::exchange(m_firstStep, std::nullopt).value_or(id));
    if (first >= 0 && scenario->indexOf(first) < 0) {
        Q_EMIT problemFound(QStringLiteral("%1 has no item %2 to begin at; it begins at its first")
                                .arg(lessonName(), QString::number(first)));
    }
    m_lostIn.reset();
    m_screen.start();
    Q_EMIT started();
    m_runner.start(*scenario, first);
}

int LessonSession::takeUp(int id)
{
    if (std::exchange(m_goesOn, false)) {
        m_history.goOn();
        return id;
    }
    const QJsonObject bookmark = std::exchange(m_resumed, {});
    const StepStart start = LessonHistory::startOf(bookmark);
    if (!bookmark.isEmpty() && (start.state.isEmpty() || m_guide.restore(start))) {
        m_history.resume(bookmark);
        m_guide.beginLesson(start);
        return LessonHistory::stepOf(bookmark);
    }
    if (!bookmark.isEmpty()) {
        Q_EMIT problemFound(QStringLiteral("the state in which %1 was left cannot be brought back; it begins "
                                           "again")
                                .arg(lessonName()));
    }
    m_history.begin(lessonName());
    m_guide.beginLesson({});
    return id;
}

void LessonSession::end()
{
    halt();
    m_screen.stop();
}

void LessonSession::halt()
{
    m_wait.stop();
    m_bubble.settle();
    m_guide.end();
    m_runner.stop();
}

void LessonSession::runCommand(const QString &command)
{
    Q_EMIT filesRequested();
    Q_EMIT sends(HostCommands::requestPresetData(LessonWords::presetStep(command)));
}

void LessonSession::onHappened(const EditorEvent &event)
{
    switch (m_guide.judge(event)) {
    case LessonGuide::Verdict::kNothing:
        break;
    case LessonGuide::Verdict::kDone:
        m_runner.handle(event);
        break;
    case LessonGuide::Verdict::kRanAhead:
        m_runner.runAhead();
        break;
    }
}

void LessonSession::onStepReached()
{
    const Step &step = m_runner.step();
    ++m_reached;
    m_shown = false;
    m_bookmarkDue = true;
    m_wait.stop();
    m_bubble.settle();
    if (step.condition.type() == Condition::Type::kWait) {
        m_wait.start(step.condition.waitMs());
    }
    if (m_guide.wasDamaged()) {
        m_history.noteDamage();
    }
    m_history.enter(step.id);
    m_guide.beginStep(m_runner, m_history.canGoBack());
    m_history.setStart(m_guide.start());
    m_bubble.tell();
    Q_EMIT stepReached();
}

void LessonSession::onTurned()
{
    if (std::exchange(m_bookmarkDue, false)) {
        m_history.setStart(m_guide.start());
        setBookmark(m_history.bookmark());
    }
    m_bubble.follow();
}

void LessonSession::onFinished()
{
    ++m_reached;
    end();
    setBookmark({});
    Q_EMIT finished();
}

void LessonSession::setBookmark(const QJsonObject &bookmark)
{
    m_bookmark = bookmark;
    Q_EMIT bookmarkChanged();
}
