#include "host/LessonHandOver.h"

#include "host/HostCommands.h"
#include "host/HostEditor.h"

#include <algorithm>
#include <utility>

QString LessonFault::message() const
{
    return QStringLiteral(
               "Lesson %1, item %2: %3. The lesson is not played. Correct \"%4\" in the lesson, or "
               "play it with an editor that knows the word.")
        .arg(lesson, QString::number(item), problem, word);
}

LessonHandOver::LessonHandOver(const HostEditor *editor, QObject *parent)
    : QObject(parent)
    , m_editor(editor)
{
    m_wait.setSingleShot(true);
    m_wait.setInterval(kMs);
    connect(&m_wait, &QTimer::timeout, this, &LessonHandOver::refuse);
}

void LessonHandOver::refuse()
{
    // Whoever hears of it may ask for another lesson at once.
    const QString lessonName = m_lessonName;
    Q_EMIT refused(lessonName);
}

void LessonHandOver::begin()
{
    askForList(QString());
}

void LessonHandOver::askForList(const QString &givenUp)
{
    m_listsDue.append(givenUp);
    Q_EMIT sends(HostCommands::tutorialList());
}

bool LessonHandOver::takeList(const QStringList &lessonNames)
{
    if (!m_listsDue.isEmpty() && !m_listsDue.takeFirst().isEmpty()) {
        return false;
    }
    m_listed = lessonNames;
    return true;
}

void LessonHandOver::stop()
{
    m_wait.stop();
    if (std::exchange(m_isAwaited, false)) {
        askForList(m_lessonName);
    }
}

void LessonHandOver::abandon()
{
    m_wait.stop();
    m_isAwaited = false;
    m_listsDue.clear();
}

void LessonHandOver::request(const QString &lessonName)
{
    stop();
    m_lessonName = lessonName;
    if (!m_listed.isEmpty() && !m_listed.contains(lessonName)) {
        // The companion would hand over the lesson before.
        refuse();
        return;
    }
    m_isAwaited = true;
    m_wait.start();
    Q_EMIT sends(HostCommands::tutorial(lessonName));
}

bool LessonHandOver::passOver(const QString &scenarioText)
{
    const auto isFence = [](const QString &givenUp) {
        return !givenUp.isEmpty();
    };
    const auto fence = std::find_if(m_listsDue.cbegin(), m_listsDue.cend(), isFence);
    if (fence == m_listsDue.cend()) {
        return false;
    }
    QStringList problems; // of no interest any more
    remember(*fence, Scenario::parse(scenarioText, &problems));
    return true;
}

Scenario LessonHandOver::read(const QString &scenarioText)
{
    QStringList problems;
    Scenario scenario = Scenario::parse(scenarioText, &problems);
    for (const QString &problem : qAsConst(problems)) {
        Q_EMIT problemFound(problem);
    }
    return scenario;
}

std::optional<Scenario> LessonHandOver::take(const QString &scenarioText)
{
    m_wait.stop();
    m_isAwaited = false;
    const Scenario scenario = read(scenarioText);
    if (scenario.size() == 0 || !isAsked(scenario)) {
        refuse();
        return {};
    }
    remember(m_lessonName, scenario);
    return ifKnown(scenario);
}

std::optional<Scenario> LessonHandOver::takeOwn(const QString &lessonName, const QString &scenarioText)
{
    stop();
    m_lessonName = lessonName;
    const Scenario scenario = read(scenarioText);
    if (scenario.size() == 0) {
        refuse();
        return {};
    }
    return ifKnown(scenario);
}

std::optional<Scenario> LessonHandOver::ifKnown(const Scenario &scenario)
{
    if (const std::optional<UnknownWord> unknown = unknownWord(scenario)) {
        Q_EMIT stopped({m_lessonName, unknown->stepId, unknown->word, unknown->problem});
        return {};
    }
    return scenario;
}

void LessonHandOver::remember(const QString &lessonName, const Scenario &scenario)
{
    if (m_lastName.isEmpty() || !scenario.isSameLesson(m_lastScenario)) {
        m_lastScenario = scenario;
        m_lastName = lessonName;
    }
}

std::optional<UnknownWord> LessonHandOver::unknownWord(const Scenario &scenario) const
{
    if (!scenario.unknownWords().isEmpty()) {
        return scenario.unknownWords().constFirst();
    }
    for (int index = 0; index < scenario.size(); ++index) {
        if (std::optional<UnknownWord> unknown = m_editor->unknownWord(scenario.step(index))) {
            return unknown;
        }
    }
    return {};
}

bool LessonHandOver::isAsked(const Scenario &scenario) const
{
    // Where the companion cannot open a lesson, it hands over the one before under the name of the new one.
    return m_lessonName.isEmpty() || m_lastName.isEmpty() || m_lessonName == m_lastName ||
           !scenario.isSameLesson(m_lastScenario);
}
