#include "lesson-check/StepCheck.h"

#include "lesson/Condition.h"
#include "lesson/description/KnownWords.h"

#include <QPoint>

#include <algorithm>

namespace {

class StepChecker
{
public:
    StepChecker(const Lesson &lesson, const DescriptionSet &windows)
        : m_lesson(lesson)
        , m_windows(windows)
    {
    }

    Findings run()
    {
        for (const ScenarioItem &step : m_lesson.steps) {
            m_step = &step;
            checkWindow();
            checkPosition();
            checkCondition();
            checkRest();
        }
        return m_findings;
    }

private:
    /// A field that cannot be read has its finding already.
    void report(const QString &field, const QString &text)
    {
        if (m_step->unread.contains(field)) {
            return;
        }
        m_findings.append({Finding::Kind::kError, m_lesson.file, m_step->line,
                           QStringLiteral("item %1").arg(m_step->id), field, text});
    }

    void checkWindow()
    {
        const QString problem = KnownWords::windowProblem(m_step->windowKey, m_windows);
        if (!problem.isEmpty()) {
            report(QStringLiteral("windowKey"), problem);
        }
    }

    void checkPosition()
    {
        const QString x = QStringLiteral("x");
        const QString y = QStringLiteral("y");
        if (m_step->hasNoPosition() || !m_step->isRead("x") || !m_step->isRead("y")) {
            return;
        }
        if (m_step->x == LessonWords::kNoPosition || m_step->y == LessonWords::kNoPosition) {
            report(m_step->x == LessonWords::kNoPosition ? y : x,
                   QStringLiteral("a step without position has -9999 in both x and y"));
            return;
        }
        const QSize size = m_windows.size(m_step->windowKey);
        if (!m_windows.contains(m_step->windowKey) || size.isEmpty() || !m_step->isRead("windowKey")) {
            return;
        }
        const QPoint tip = QPoint(m_step->x, m_step->y) + LessonWords::kTip;
        if (tip.x() < 0 || tip.x() >= size.width()) {
            report(x, QStringLiteral("the arrow's tip would be at %1, outside the window's width of %2")
                          .arg(tip.x())
                          .arg(size.width()));
        } else if (tip.y() < 0 || tip.y() >= size.height()) {
            report(y, QStringLiteral("the arrow's tip would be at %1, outside the window's height of %2")
                          .arg(tip.y())
                          .arg(size.height()));
        } else {
            checkTarget(tip);
        }
    }

    void checkTarget(const QPoint &tip)
    {
        const QVector<ControlDescription> controls = m_windows.controlsIn(m_step->windowKey);
        const auto holds = [&](const ControlDescription &control) {
            return control.geometry.contains(tip);
        };
        if (!controls.isEmpty() && std::none_of(controls.cbegin(), controls.cend(), holds)) {
            report(QStringLiteral("x"),
                   QStringLiteral("the arrow's tip would be at (%1, %2), where the window has no control")
                       .arg(tip.x())
                       .arg(tip.y()));
        }
    }

    void checkCondition()
    {
        if (!m_step->isRead("condition")) {
            return;
        }
        QString problem = QStringLiteral("\"\" is not a condition type");
        const std::optional<Condition> condition =
            m_step->condition.isEmpty() ? std::nullopt : Condition::parse(m_step->condition, &problem);
        if (condition) {
            // What is of a control cannot be looked for without the window.
            const bool hasWindow = !condition->isOfControl() || m_step->isRead("windowKey");
            problem = hasWindow ? KnownWords::conditionProblem(*condition, m_step->windowKey, m_windows)
                                : QString();
        }
        if (!problem.isEmpty()) {
            report(QStringLiteral("condition"), problem);
        } else if (condition && condition->type() == Condition::Type::kAction) {
            checkActionState(condition->target(), condition->value());
        }
        if (Condition::wordOf(m_step->condition) != QLatin1String("yesNo") &&
            m_step->jumpNo != LessonWords::kNoJump) {
            report(QStringLiteral("jumpNo"),
                   QStringLiteral("only a step with the condition yesNo has a way for no"));
        }
    }

    void checkActionState(const QString &action, const QString &state)
    {
        const QStringList states = m_windows.actionStates(action);
        if (!states.contains(state)) {
            report(QStringLiteral("condition"),
                   QStringLiteral("the action %1 reports \"action,%1,%2\"").arg(action, states.first()));
        }
    }

    void checkRest()
    {
        if (LessonWords::iconKind(m_step->icon) == static_cast<int>(LessonWords::kIcons.size())) {
            report(QStringLiteral("icon"), QStringLiteral("\"%1\" is not an icon").arg(m_step->icon));
        }
        if (!m_step->command.isEmpty() && LessonWords::presetStep(m_step->command).isEmpty()) {
            report(QStringLiteral("command"),
                   QStringLiteral("\"%1\" is not of the form presetData,stepN").arg(m_step->command));
        }
        if (m_step->hint != m_step->translationId && m_step->isRead("translationId")) {
            report(QStringLiteral("hint"), QStringLiteral("the hint shows text %1, the translationId says %2")
                                               .arg(m_step->hint)
                                               .arg(m_step->translationId));
        }
        if (m_step->folder) {
            report(QStringLiteral("folder"), QStringLiteral("a lesson has no folders"));
        }
        if (m_step->prohibited) {
            report(QStringLiteral("prohibited"), QStringLiteral("no step of a lesson is prohibited"));
        }
    }

    const Lesson &m_lesson;
    const DescriptionSet &m_windows;
    const ScenarioItem *m_step = nullptr;
    Findings m_findings;
};

} // namespace

Findings checkSteps(const Lesson &lesson, const DescriptionSet &windows)
{
    return StepChecker(lesson, windows).run();
}
