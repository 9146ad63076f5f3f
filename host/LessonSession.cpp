#include "host/LessonSession.h"

#include "host/HostEditor.h"

LessonSession::LessonSession(HostEditor *editor, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
    , m_runner([editor] { return editor->openWindows(); })
{
    m_wait.setSingleShot(true);
    connect(&m_wait, &QTimer::timeout, &m_runner, &ScenarioRunner::elapsed);
    m_handOver.setSingleShot(true);
    m_handOver.setInterval(kHandOverMs);
    connect(&m_handOver, &QTimer::timeout, this, [this] { Q_EMIT refused(m_lessonName); });
    connect(&m_runner, &ScenarioRunner::stepReached, this, &LessonSession::onStepReached);
    connect(&m_runner, &ScenarioRunner::commandRequested, this, &LessonSession::runCommand);
    connect(&m_runner, &ScenarioRunner::finished, this, [this] {
        end();
        Q_EMIT finished();
    });

    connect(editor, &HostEditor::happened, &m_runner, &ScenarioRunner::handle);
    connect(editor, &HostEditor::pushed, this, &LessonSession::sendPush);
    connect(editor, &HostEditor::popped, this, [this] {
        sendPop();
        onWindowGone();
    });
    connect(editor, &HostEditor::popupAbandoned, this, [this] {
        // Whether the companion has taken the popup off already cannot be known here: its stack is emptied,
        // which one pop too many does not harm, and told anew.
        const QStringList keys = m_editor->openWindows();
        for (int i = 0; i <= keys.size(); ++i) {
            sendPop();
        }
        for (const QString &key : keys) {
            sendPush(key);
        }
        onWindowGone();
    });
    connect(editor, &HostEditor::moved, this, &LessonSession::onMoved);
    connect(editor, &HostEditor::controlMoved, this, [this](const QString &name, const QPoint &position) {
        Q_EMIT sends(HostCommands::controlPosition(name, position));
    });
    connect(editor, &HostEditor::visibilityChanged, this,
            [this](bool visible) { Q_EMIT sends(HostCommands::state(visible)); });
}

void LessonSession::greet(const QString &locale)
{
    Q_EMIT sends(HostCommands::fromServer(locale));
    Q_EMIT sends(HostCommands::tutorialList());
}

void LessonSession::request(const QString &lessonName)
{
    stop();
    m_lessonName = lessonName;
    m_handOver.start();
    Q_EMIT sends(HostCommands::tutorial(lessonName));
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
    m_runner.stop();
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
        m_runner.next();
        break;
    case Kind::kYes:
    case Kind::kNo:
        m_runner.answer(read.kind == Kind::kYes);
        break;
    case Kind::kTutorialList:
        Q_EMIT lessonsListed(read.lessons);
        break;
    case Kind::kFeedbackPresetData:
        if (read.problem.isEmpty()) {
            Q_EMIT filesReceived(read.files);
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
    const Step &step = m_runner.step();
    const std::optional<QPoint> origin = m_editor->origin(step.windowKey);
    return origin ? std::optional(*origin + QPoint(step.x, step.y)) : std::nullopt;
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
        const QStringList from = m_editor->openedFrom(closed.at(i));
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

void LessonSession::begin(const QString &scenarioText, int id)
{
    QStringList problems;
    const Scenario scenario = Scenario::parse(scenarioText, &problems);
    for (const QString &problem : qAsConst(problems)) {
        Q_EMIT problemFound(problem);
    }
    m_handOver.stop();
    stop();
    if (scenario.size() == 0) {
        Q_EMIT refused(m_lessonName);
        return;
    }
    Q_EMIT sends(HostCommands::start(m_editor->screenRect()));
    sendWindows();
    sendFirstPlace();
    Q_EMIT started();
    m_runner.start(scenario, id);
}

void LessonSession::end()
{
    m_wait.stop();
    m_runner.stop();
    Q_EMIT sends(HostCommands::stop());
}

void LessonSession::runCommand(const QString &command)
{
    const QString presetStep = LessonWords::presetStep(command);
    if (!presetStep.isEmpty()) {
        Q_EMIT filesRequested();
        Q_EMIT sends(HostCommands::requestPresetData(presetStep));
    } else {
        Q_EMIT problemFound(
            QStringLiteral("step %1: the command \"%2\" is unknown").arg(m_runner.step().id).arg(command));
    }
}

void LessonSession::onStepReached()
{
    m_wait.stop();
    if (m_runner.step().condition.type() == Condition::Type::kWait) {
        m_wait.start(m_runner.step().condition.waitMs());
    }
    sendStep();
    Q_EMIT stepReached();
}

void LessonSession::onMoved(const QString &windowKey, const QPoint &origin)
{
    Q_EMIT sends(HostCommands::windowPosition(windowKey, origin));
    sendApplicationSize();
    if (!m_runner.isRunning() || windowKey != m_runner.step().windowKey) {
        return;
    }
    const std::optional<QPoint> target = bubbleTarget();
    if (target && m_pointing) {
        sendPlace(*target);
    } else if (target) {
        sendStep();
    }
}

void LessonSession::onWindowGone()
{
    if (m_runner.isRunning() && m_pointing && !bubbleTarget()) {
        sendStep();
    }
}

void LessonSession::sendPush(const QString &windowKey)
{
    Q_EMIT sends(HostCommands::windowPush(windowKey));
}

void LessonSession::sendPop()
{
    Q_EMIT sends(HostCommands::windowPop());
}

void LessonSession::sendWindows()
{
    const QStringList keys = m_editor->openWindows();
    for (const QString &key : keys) {
        sendPush(key);
        Q_EMIT sends(HostCommands::windowPosition(key, m_editor->origin(key).value_or(QPoint())));
    }
    m_applicationSize = QSize();
    sendApplicationSize();
}

void LessonSession::sendFirstPlace()
{
    const QStringList keys = m_editor->openWindows();
    if (!keys.isEmpty()) {
        const QPoint origin = m_editor->origin(keys.constFirst()).value_or(QPoint());
        const QRect contents(origin, m_editor->applicationSize());
        sendPlace(contents.center() - LessonWords::kTip);
    }
}

void LessonSession::sendPlace(const QPoint &place)
{
    m_place = place;
    Q_EMIT sends(HostCommands::indicatorUpdateXy(place));
}

void LessonSession::sendApplicationSize()
{
    const QSize size = m_editor->applicationSize();
    if (size != m_applicationSize) {
        m_applicationSize = size;
        Q_EMIT sends(HostCommands::applicationWindowSize(size));
    }
}

void LessonSession::sendStep()
{
    const Step &step = m_runner.step();
    const std::optional<QPoint> target = bubbleTarget();
    m_pointing = target.has_value();
    if (m_pointing) {
        m_place = target;
    }
    IndicatorUpdate update;
    update.place = target;
    update.windowKey = step.windowKey;
    update.hint = step.hint;
    update.next = step.condition.type() == Condition::Type::kNext;
    update.yesNo = step.condition.type() == Condition::Type::kYesNo;
    update.arrow = step.showArrow;
    update.iconKind = LessonWords::iconKind(step.icon);
    Q_EMIT sends(HostCommands::indicatorUpdate(update));
    Q_EMIT stepTold();
}
