#include "host/LessonSession.h"

#include "host/HostEditor.h"

#include <algorithm>
#include <utility>

namespace {

/// How long the arrow is away before it glides in again, so that the eye follows it.
constexpr int kGlideMs = 600;

} // namespace

QString LessonFault::message() const
{
    return QStringLiteral(
               "Lesson %1, item %2: %3. The lesson is not played. Correct \"%4\" in the lesson, or "
               "play it with an editor that knows the word.")
        .arg(lesson, QString::number(item), problem, word);
}

LessonSession::LessonSession(HostEditor *editor, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
    , m_screen(editor)
    , m_runner([editor] { return editor->openWindows(); })
    , m_guide(editor)
{
    m_wait.setSingleShot(true);
    connect(&m_wait, &QTimer::timeout, &m_runner, &ScenarioRunner::elapsed);
    m_handOver.setSingleShot(true);
    m_handOver.setInterval(kHandOverMs);
    connect(&m_handOver, &QTimer::timeout, this, [this] { Q_EMIT refused(m_lessonName); });
    m_glide.setSingleShot(true);
    m_glide.setInterval(kGlideMs);
    connect(&m_glide, &QTimer::timeout, this, &LessonSession::sendStep);
    connect(&m_runner, &ScenarioRunner::stepReached, this, &LessonSession::onStepReached);
    connect(&m_runner, &ScenarioRunner::commandRequested, this, &LessonSession::runCommand);
    connect(&m_runner, &ScenarioRunner::finished, this, [this] {
        ++m_reached;
        end();
        setBookmark({});
        Q_EMIT finished();
    });
    connect(&m_screen, &CompanionScreen::sends, this, &LessonSession::sends);
    connectGuide();
    connect(editor, &HostEditor::happened, this, &LessonSession::onHappened);
    connect(editor, &HostEditor::popped, this, &LessonSession::onWindowGone);
    connect(editor, &HostEditor::popupAbandoned, this, &LessonSession::onWindowGone);
    connect(editor, &HostEditor::moved, this, &LessonSession::onMoved);
}

void LessonSession::connectGuide()
{
    connect(&m_guide, &LessonGuide::changed, this, [this] {
        sendStep();
        Q_EMIT astrayChanged();
    });
    connect(&m_guide, &LessonGuide::turned, this, &LessonSession::onTurned);
    connect(&m_guide, &LessonGuide::helpOffered, this, &LessonSession::helpOffered);
}

void LessonSession::greet(const QString &locale)
{
    Q_EMIT sends(HostCommands::fromServer(locale));
    Q_EMIT sends(HostCommands::tutorialList());
}

void LessonSession::request(const QString &lessonName)
{
    stop();
    m_resumed = {};
    m_lessonName = lessonName;
    if (!m_listed.isEmpty() && !m_listed.contains(lessonName)) {
        // The companion would hand over the lesson before.
        Q_EMIT refused(lessonName);
        return;
    }
    m_handOver.start();
    Q_EMIT sends(HostCommands::tutorial(lessonName));
}

void LessonSession::resume(const QJsonObject &bookmark)
{
    request(LessonHistory::lessonOf(bookmark));
    m_resumed = bookmark;
}

void LessonSession::stop()
{
    if (m_runner.isRunning()) {
        end();
    }
}

void LessonSession::abandon()
{
    m_handOver.stop();
    m_wait.stop();
    m_glide.stop();
    m_guide.end();
    m_runner.stop();
}

void LessonSession::back()
{
    if (!canGoBack()) {
        return;
    }
    const LessonHistory::Visit visit = m_history.goBack();
    m_wait.stop();
    m_guide.end();
    m_guide.restore(visit.start);
    m_runner.goTo(visit.id);
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
    m_screen.moveToMiddle();
    m_glide.start();
}

void LessonSession::skipStep()
{
    const int before = m_reached;
    doStep();
    if (m_reached == before) {
        m_runner.skip();
    }
}

void LessonSession::doStep()
{
    if (!m_runner.isRunning()) {
        return;
    }
    if (m_guide.isAstray()) {
        m_guide.putBack();
    }
    const Step step = m_runner.step();
    if (step.condition.type() == Condition::Type::kNext) {
        m_runner.next();
    } else if (const std::optional<ControlSpot> pointed = m_guide.pointed()) {
        m_editor->perform(ControlUse::of(step, *pointed));
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
        begin(read.text, read.id.value_or(-1));
        break;
    case Kind::kNext:
        Q_EMIT nextArrived();
        // While what leads back is shown there is no such button; a press may be on its way.
        if (!isAstray()) {
            m_runner.next();
        }
        break;
    case Kind::kYes:
    case Kind::kNo:
        Q_EMIT nextArrived();
        m_runner.answer(read.kind == Kind::kYes);
        break;
    case Kind::kTutorialList:
        m_listed.clear();
        for (const Lesson &lesson : read.lessons) {
            m_listed.append(lesson.name);
        }
        Q_EMIT lessonsListed(read.lessons);
        break;
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

std::optional<QPoint> LessonSession::bubbleTarget() const
{
    if (!m_runner.isRunning() || !m_runner.step().hasPosition()) {
        return {};
    }
    if (isAstray()) {
        const std::optional<Way> &way = m_guide.wayBack();
        const std::optional<QPoint> spot = way ? m_editor->spotOf(way->by) : std::nullopt;
        return spot ? std::optional(*spot - LessonWords::kTip) : std::nullopt;
    }
    const Step &step = m_runner.step();
    const std::optional<QPoint> origin = m_editor->origin(step.windowKey);
    if (!origin) {
        return {};
    }
    const QPoint place = *origin + QPoint(step.x, step.y);
    // A row or cell that was scrolled or zoomed is what the step means, and not the place where it was.
    const std::optional<ControlSpot> &pointed = m_guide.pointed();
    const std::optional<QRect> rect =
        pointed && pointed->part >= 0 ? m_editor->rectOf(*pointed) : std::nullopt;
    const bool isElsewhere = rect && !rect->contains(place + LessonWords::kTip);
    return isElsewhere ? rect->center() - LessonWords::kTip : place;
}

bool LessonSession::lacksWindow() const
{
    return m_runner.isRunning() && m_runner.step().hasPosition() && !bubbleTarget();
}

QString LessonSession::windowToOpen() const
{
    if (!lacksWindow()) {
        return {};
    }
    const QStringList open = m_editor->openWindows();
    QStringList closed = {m_runner.step().windowKey};
    for (int i = 0; i < closed.size(); ++i) {
        // Of several windows, one that the lesson knows.
        QStringList from = m_editor->openedFrom(closed.at(i));
        std::stable_partition(from.begin(), from.end(),
                              [this](const QString &key) { return m_runner.scenario().hasStepIn(key); });
        for (const QString &key : from) {
            if (open.contains(key)) {
                return closed.at(i);
            }
            if (!closed.contains(key)) {
                closed += key;
            }
        }
    }
    return closed.constFirst();
}

void LessonSession::play(const QString &lessonName, const QString &scenarioText, int id)
{
    m_resumed = {};
    m_lessonName = lessonName;
    m_lastName = lessonName; // nothing was asked for
    begin(scenarioText, id);
}

void LessonSession::begin(const QString &scenarioText, int id)
{
    QStringList problems;
    const Scenario scenario = Scenario::parse(scenarioText, &problems);
    for (const QString &problem : qAsConst(problems)) {
        Q_EMIT problemFound(problem);
    }
    m_handOver.stop();
    stop();
    if (scenario.size() == 0 || !isAsked(scenario)) {
        Q_EMIT refused(m_lessonName);
        return;
    }
    m_lastScenario = scenario;
    m_lastName = m_lessonName;
    if (!scenario.unknownWords().isEmpty()) {
        const UnknownWord &unknown = scenario.unknownWords().constFirst();
        Q_EMIT stopped({m_lessonName, unknown.stepId, unknown.word, unknown.problem});
        return;
    }
    const int first = takeUp(std::exchange(m_firstStep, std::nullopt).value_or(id));
    m_screen.start();
    Q_EMIT started();
    m_runner.start(scenario, first);
}

bool LessonSession::isAsked(const Scenario &scenario) const
{
    // Where the companion cannot open a lesson, it hands over the one before under the name of the new one.
    return m_lessonName.isEmpty() || m_lastName.isEmpty() || m_lessonName == m_lastName ||
           !scenario.isSameLesson(m_lastScenario);
}

int LessonSession::takeUp(int id)
{
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
                                .arg(m_lessonName));
    }
    m_history.begin(m_lessonName);
    m_guide.beginLesson({});
    return id;
}

void LessonSession::end()
{
    m_wait.stop();
    m_glide.stop();
    m_guide.end();
    m_runner.stop();
    m_screen.stop();
}

void LessonSession::runCommand(const QString &command)
{
    Q_EMIT filesRequested();
    Q_EMIT sends(HostCommands::requestPresetData(LessonWords::presetStep(command)));
}

void LessonSession::onHappened(const EditorEvent &event)
{
    const bool meets =
        m_runner.isRunning() && m_runner.step().condition.isMetBy(event, m_runner.step().windowKey);
    if (m_guide.counts(event, meets)) {
        m_runner.handle(event);
    }
}

void LessonSession::onStepReached()
{
    const Step &step = m_runner.step();
    ++m_reached;
    m_shown = false;
    m_bookmarkDue = true;
    m_wait.stop();
    m_glide.stop();
    if (step.condition.type() == Condition::Type::kWait) {
        m_wait.start(step.condition.waitMs());
    }
    m_history.enter(step.id);
    m_guide.beginStep(step);
    m_history.setStart(m_guide.start());
    sendStep();
    Q_EMIT stepReached();
}

void LessonSession::onTurned()
{
    if (std::exchange(m_bookmarkDue, false)) {
        m_history.setStart(m_guide.start());
        setBookmark(m_history.bookmark());
    }
    const std::optional<QPoint> target = bubbleTarget();
    if (target && m_pointing && target != m_screen.place() && !m_glide.isActive()) {
        m_screen.move(*target);
    }
}

void LessonSession::setBookmark(const QJsonObject &bookmark)
{
    m_bookmark = bookmark;
    Q_EMIT bookmarkChanged();
}

void LessonSession::onMoved(const QString &windowKey)
{
    if (!m_runner.isRunning()) {
        return;
    }
    const std::optional<QPoint> target = bubbleTarget();
    if (target && m_pointing && target != m_screen.place()) {
        m_screen.move(*target);
    } else if (target && !m_pointing && windowKey == m_runner.step().windowKey) {
        sendStep();
    }
}

void LessonSession::onWindowGone()
{
    if (m_runner.isRunning() && m_pointing && !bubbleTarget()) {
        sendStep();
    }
}

void LessonSession::sendStep()
{
    const Step &step = m_runner.step();
    const std::optional<QPoint> target = bubbleTarget();
    m_pointing = target.has_value();
    IndicatorUpdate update;
    update.place = target;
    update.windowKey = step.windowKey;
    update.hint = step.hint;
    update.next = step.condition.type() == Condition::Type::kNext;
    update.yesNo = step.condition.type() == Condition::Type::kYesNo;
    update.arrow = step.showArrow;
    update.iconKind = LessonWords::iconKind(step.icon);
    if (isAstray()) {
        const std::optional<Way> &way = m_guide.wayBack();
        const QString hint = way            ? m_editor->hintBack(*way, step)
                             : canPutBack() ? m_editor->hintToPutBack(step)
                                            : QString();
        update.hint = hint.isEmpty() ? step.hint : hint;
        update.next = false;
        update.yesNo = false;
        update.arrow = true;
        update.iconKind = LessonWords::iconKind(way ? way->icon : QString());
    }
    m_hint = update.hint;
    m_screen.tell(update);
    Q_EMIT stepTold();
}
