#include "PilotPlay.h"

#include "lesson/LessonWords.h"
#include "strip/LessonCatalog.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

const QLatin1String kAll("all");
const QLatin1String kLesson("TutorialStep");

/// What the option @p name names of @p known: one, or all of them with @p all.
QStringList chosen(const QCommandLineParser &parser, const QString &name, const QString &all,
                   const QStringList &known, QString *problem)
{
    const QString value = parser.value(name);
    if (value == all) {
        return known;
    }
    if (!known.contains(value)) {
        const QString range = known.size() > 3
                                  ? QStringLiteral("%1 to %2").arg(known.constFirst(), known.constLast())
                                  : known.join(QStringLiteral(", "));
        *problem = QStringLiteral("there is no %1 \"%2\"; --%1 takes %3 or %4").arg(name, value, range, all);
        return {};
    }
    return {value};
}

/// Answers to several questions are a way of their own.
QStringList chosenWays(const QCommandLineParser &parser, QString *problem)
{
    const QString name = QStringLiteral("way");
    static const QRegularExpression several(QStringLiteral("^(yes|no)(-(yes|no))+$"));
    const QString value = parser.value(name);
    return several.match(value).hasMatch() ? QStringList(value)
                                           : chosen(parser, name, QStringLiteral("both"),
                                                    {QStringLiteral("yes"), QStringLiteral("no")}, problem);
}

} // namespace

QString PilotPlay::lessonName() const
{
    return lesson > 0 ? QString(kLesson + QString::number(lesson)) : QFileInfo(scenario).completeBaseName();
}

QString PilotPlay::step() const
{
    static const QRegularExpression numbered(QStringLiteral("^TutorialStep([0-9]+)$"));
    const QString number = numbered.match(lessonName()).captured(1);
    // The first lesson begins with nothing.
    return number.toInt() > 1 ? QStringLiteral("step") + number : QString();
}

QVector<bool> PilotPlay::answers() const
{
    QVector<bool> answers;
    const QStringList words = way.split(QLatin1Char('-'));
    for (const QString &word : words) {
        answers.append(word == QLatin1String("yes"));
    }
    return answers;
}

QString PilotPlay::title() const
{
    const QString name = lesson > 0 ? QStringLiteral("lesson %1").arg(lesson) : lessonName();
    return QStringLiteral("%1 (%2, %3)").arg(name, locale, way);
}

QString PilotPlay::folderName() const
{
    const QString name = lesson > 0 ? QStringLiteral("lesson%1").arg(lesson) : lessonName();
    return QStringLiteral("%1-%2-%3").arg(name, locale, way);
}

QVector<PilotPlay> pilotPlays(const QCommandLineParser &parser, QString *problem)
{
    QStringList numbers;
    const int lessonCount = LessonCatalog(QString()).count();
    for (int number = 1; number <= lessonCount; ++number) {
        numbers += QString::number(number);
    }
    const QString scenario = parser.value(QStringLiteral("scenario"));
    if (!parser.isSet(QStringLiteral("lesson")) && scenario.isEmpty()) {
        *problem = QStringLiteral(
            "--pilot needs to know which lesson: add --lesson N, --lesson all, or --scenario FILE");
        return {};
    }
    const QStringList lessons = scenario.isEmpty()
                                    ? chosen(parser, QStringLiteral("lesson"), kAll, numbers, problem)
                                    : QStringList(QStringLiteral("0"));
    const QStringList locales =
        chosen(parser, QStringLiteral("locale"), kAll, LessonWords::locales(), problem);
    const QStringList ways = chosenWays(parser, problem);
    QVector<PilotPlay> plays;
    for (const QString &lesson : lessons) {
        for (const QString &locale : locales) {
            for (const QString &way : ways) {
                plays.append({lesson.toInt(), scenario, locale, way});
            }
        }
    }
    return plays;
}
