#include "lesson-check/OpeningCheck.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int kQuestion = 2;
constexpr int kNewProject = 3;
constexpr int kProjectThatIsThere = 6;

Finding finding(const Lesson &lesson, const ScenarioItem &step, const QString &field, const QString &text)
{
    return {
        Finding::Kind::kError, lesson.file, step.line, QStringLiteral("item %1").arg(step.id), field, text};
}

} // namespace

Findings checkOpening(const Lesson &lesson)
{
    Findings findings;
    const auto isQuestion = [](const ScenarioItem &step) {
        return step.id == kQuestion && step.condition == QLatin1String("yesNo") && step.jump == kNewProject &&
               step.jumpNo == kProjectThatIsThere;
    };
    if (std::none_of(lesson.steps.cbegin(), lesson.steps.cend(), isQuestion)) {
        findings.append({Finding::Kind::kError,
                         lesson.file,
                         0,
                         QStringLiteral("item %1").arg(kQuestion),
                         {},
                         QStringLiteral("it has to be the yesNo step with \"jump\" %1 and \"jumpNo\" %2")
                             .arg(kNewProject)
                             .arg(kProjectThatIsThere)});
    }
    static const QRegularExpression digits(QStringLiteral("\\d+$"));
    const QString command = QStringLiteral("presetData,step") + digits.match(lesson.name).captured();
    for (const ScenarioItem &step : lesson.steps) {
        const bool makesProject = step.condition == QLatin1String("windowState,Copying,open") &&
                                  step.windowKey == QLatin1String("NewProject");
        const QString wanted = makesProject ? command : QString();
        if (step.command != wanted) {
            findings.append(finding(lesson, step, QStringLiteral("command"),
                                    QStringLiteral("it has to be \"%1\" here").arg(wanted)));
        }
    }
    return findings;
}
