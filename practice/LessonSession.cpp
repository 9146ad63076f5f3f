#include "LessonSession.h"

#include "window/EditorWindows.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr QChar kFieldSeparator(1);
constexpr int kFlagNext = 1;
constexpr int kFlagYesNo = 2;
constexpr int kFlagArrow = 4;

int flagsOf(const ScenarioStep &step)
{
    int flags = step.showArrow ? kFlagArrow : 0;
    if (step.condition.type() == Condition::Type::kNext) {
        flags |= kFlagNext;
    } else if (step.condition.type() == Condition::Type::kYesNo) {
        flags |= kFlagYesNo;
    }
    return flags;
}

QString number(int value)
{
    return QString::number(value);
}

} // namespace

LessonSession::LessonSession(EditorWindows *windows, QObject *parent)
    : QObject(parent)
    , m_windows(windows)
    , m_runner([windows] { return windows->openWindows(); })
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

    connect(windows, &EditorWindows::happened, &m_runner, &ScenarioRunner::handle);
    connect(windows, &EditorWindows::pushed, this, &LessonSession::sendPush);
    connect(windows, &EditorWindows::popped, this, [this] {
        sendPop();
        onWindowGone();
    });
    connect(windows, &EditorWindows::popupAbandoned, this, [this] {
        // Whether the companion has taken the popup off already cannot be known here: its stack is emptied,
        // which one pop too many does not harm, and told anew.
        const QStringList keys = m_windows->openWindows();
        for (int i = 0; i <= keys.size(); ++i) {
            sendPop();
        }
        for (const QString &key : keys) {
            sendPush(key);
        }
        onWindowGone();
    });
    connect(windows, &EditorWindows::moved, this, &LessonSession::onMoved);
    connect(windows, &EditorWindows::controlMoved, this, [this](const QString &name, const QPoint &position) {
        Q_EMIT sends({QStringLiteral("controlPosition"), name, number(position.x()), number(position.y())});
    });
    connect(windows, &EditorWindows::visibilityChanged, this, [this](bool visible) {
        Q_EMIT sends({QStringLiteral("state"), visible ? QStringLiteral("show") : QStringLiteral("hide")});
    });
}

void LessonSession::greet(const QString &locale)
{
    Q_EMIT sends({QStringLiteral("fromServer"), locale});
    Q_EMIT sends({QStringLiteral("tutorialList")});
}

void LessonSession::request(const QString &lessonName)
{
    stop();
    m_lessonName = lessonName;
    m_handOver.start();
    Q_EMIT sends({QStringLiteral("tutorial"), lessonName});
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
    const QString word = command.section(kFieldSeparator, 0, 0);
    if (word == QLatin1String("start")) {
        // The id is the last field: whatever stands between is the scenario.
        bool isNumber = false;
        const int id = command.section(kFieldSeparator, -1).toInt(&isNumber);
        if (!isNumber) {
            Q_EMIT problemFound(
                QStringLiteral("\"start\" names no step to begin with; the lesson begins at the first"));
        }
        begin(command.section(kFieldSeparator, 1, -2), isNumber ? id : -1);
    } else if (word == QLatin1String("next")) {
        m_runner.next();
    } else if (word == QLatin1String("yes") || word == QLatin1String("no")) {
        m_runner.answer(word == QLatin1String("yes"));
    } else if (word == QLatin1String("tutorialList")) {
        list(command.section(kFieldSeparator, 1));
    } else if (word == QLatin1String("feedbackPresetData")) {
        readFiles(command.section(kFieldSeparator, 1));
    } else if (word != QLatin1String("tutorialReady") && word != QLatin1String("indicator")) {
        Q_EMIT problemFound(QStringLiteral("the companion sent the unknown command \"%1\"").arg(word));
    }
}

std::optional<QPoint> LessonSession::bubbleTarget() const
{
    if (!m_runner.isRunning() || !m_runner.step().hasPosition()) {
        return {};
    }
    const ScenarioStep &step = m_runner.step();
    const QPoint origin = m_windows->origin(step.windowKey);
    // (0, 0) is the answer for a window that is not open; only the screen has its origin there.
    if (origin.isNull() && !step.windowKey.isEmpty()) {
        return {};
    }
    return origin + QPoint(step.x, step.y);
}

bool LessonSession::lacksWindow() const
{
    return m_runner.isRunning() && m_runner.step().hasPosition() && !bubbleTarget();
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
    const QRect screen = m_windows->screenRect();
    Q_EMIT sends({QStringLiteral("start"), number(screen.x()), number(screen.y()), number(screen.width()),
                  number(screen.height())});
    sendWindows();
    sendFirstPlace();
    Q_EMIT started();
    m_runner.start(scenario, id);
}

void LessonSession::end()
{
    m_wait.stop();
    m_runner.stop();
    Q_EMIT sends({QStringLiteral("stop")});
}

void LessonSession::list(const QString &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (!document.isArray()) {
        Q_EMIT problemFound(QStringLiteral("the list of lessons cannot be read"));
    }
    QVector<Lesson> lessons;
    const QJsonArray entries = document.array();
    for (const QJsonValue &entry : entries) {
        lessons.append(
            {entry[QLatin1String("filename")].toString(), entry[QLatin1String("title")].toString()});
    }
    Q_EMIT lessonsListed(lessons);
}

void LessonSession::readFiles(const QString &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8());
    if (!document.isObject()) {
        Q_EMIT problemFound(QStringLiteral("the data files of the lesson cannot be read"));
        return;
    }
    QMap<QString, QString> files;
    const QJsonObject object = document.object();
    for (auto file = object.begin(); file != object.end(); ++file) {
        files.insert(file.key(), file.value().toString());
    }
    Q_EMIT filesReceived(files);
}

void LessonSession::runCommand(const QString &command)
{
    const QStringList words = command.split(QLatin1Char(','));
    if (words.size() == 2 && words.constFirst() == QLatin1String("presetData")) {
        Q_EMIT filesRequested();
        Q_EMIT sends({QStringLiteral("requestPresetData"), words.constLast()});
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
    Q_EMIT sends({QStringLiteral("windowPosition"), windowKey, number(origin.x()), number(origin.y())});
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
    Q_EMIT sends({QStringLiteral("windowStack"), QStringLiteral("push"), windowKey});
}

void LessonSession::sendPop()
{
    Q_EMIT sends({QStringLiteral("windowStack"), QStringLiteral("pop")});
}

void LessonSession::sendWindows()
{
    const QStringList keys = m_windows->openWindows();
    for (const QString &key : keys) {
        sendPush(key);
        const QPoint origin = m_windows->origin(key);
        Q_EMIT sends({QStringLiteral("windowPosition"), key, number(origin.x()), number(origin.y())});
    }
    m_applicationSize = QSize();
    sendApplicationSize();
}

void LessonSession::sendFirstPlace()
{
    const QStringList keys = m_windows->openWindows();
    if (!keys.isEmpty()) {
        const QRect contents(m_windows->origin(keys.constFirst()), m_windows->applicationSize());
        sendPlace(contents.center() - ScenarioStep::kTip);
    }
}

void LessonSession::sendPlace(const QPoint &place)
{
    m_place = place;
    Q_EMIT sends(
        {QStringLiteral("indicator"), QStringLiteral("updateXy"), number(place.x()), number(place.y())});
}

void LessonSession::sendApplicationSize()
{
    const QSize size = m_windows->applicationSize();
    if (size != m_applicationSize) {
        m_applicationSize = size;
        Q_EMIT sends({QStringLiteral("applicationWindowSize"), number(size.width()), number(size.height())});
    }
}

void LessonSession::sendStep()
{
    const ScenarioStep &step = m_runner.step();
    const std::optional<QPoint> target = bubbleTarget();
    m_pointing = target.has_value();
    if (m_pointing) {
        m_place = target;
    }
    const QPoint position = target.value_or(QPoint(ScenarioStep::kNoPosition, ScenarioStep::kNoPosition));
    Q_EMIT sends({QStringLiteral("indicator"), QStringLiteral("update"), number(position.x()),
                  number(position.y()), step.windowKey, step.hint, number(flagsOf(step)),
                  number(step.iconKind())});
    Q_EMIT stepTold();
}
