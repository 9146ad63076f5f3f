#include "host/LessonHandOver.h"

#include "host/HostCommands.h"

QString LessonFault::message() const
{
    return QStringLiteral(
               "Lesson %1, item %2: %3. The lesson is not played. Correct \"%4\" in the lesson, or "
               "play it with an editor that knows the word.")
        .arg(lesson, QString::number(item), problem, word);
}

LessonHandOver::LessonHandOver(QObject *parent)
    : QObject(parent)
{
    m_wait.setSingleShot(true);
    m_wait.setInterval(kMs);
    connect(&m_wait, &QTimer::timeout, this, [this] { Q_EMIT refused(m_lessonName); });
}

void LessonHandOver::request(const QString &lessonName)
{
    m_lessonName = lessonName;
    if (!m_listed.isEmpty() && !m_listed.contains(lessonName)) {
        // The companion would hand over the lesson before.
        Q_EMIT refused(lessonName);
        return;
    }
    m_wait.start();
    Q_EMIT sends(HostCommands::tutorial(lessonName));
}

void LessonHandOver::expectOwn(const QString &lessonName)
{
    m_lessonName = lessonName;
    m_lastName = lessonName; // nothing was asked for
}

std::optional<Scenario> LessonHandOver::take(const QString &scenarioText)
{
    m_wait.stop();
    QStringList problems;
    const Scenario scenario = Scenario::parse(scenarioText, &problems);
    for (const QString &problem : qAsConst(problems)) {
        Q_EMIT problemFound(problem);
    }
    if (scenario.size() == 0 || !isAsked(scenario)) {
        Q_EMIT refused(m_lessonName);
        return {};
    }
    m_lastScenario = scenario;
    m_lastName = m_lessonName;
    if (!scenario.unknownWords().isEmpty()) {
        const UnknownWord &unknown = scenario.unknownWords().constFirst();
        Q_EMIT stopped({m_lessonName, unknown.stepId, unknown.word, unknown.problem});
        return {};
    }
    return scenario;
}

bool LessonHandOver::isAsked(const Scenario &scenario) const
{
    // Where the companion cannot open a lesson, it hands over the one before under the name of the new one.
    return m_lessonName.isEmpty() || m_lastName.isEmpty() || m_lessonName == m_lastName ||
           !scenario.isSameLesson(m_lastScenario);
}
