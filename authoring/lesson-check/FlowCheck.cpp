#include "lesson-check/FlowCheck.h"

#include <QHash>
#include <QVector>

namespace {

class FlowChecker
{
public:
    explicit FlowChecker(const Lesson &lesson)
        : m_lesson(lesson)
        , m_reached(lesson.steps.size(), false)
    {
    }

    Findings run()
    {
        for (int i = 0; i < m_lesson.steps.size(); ++i) {
            index(i);
        }
        for (const ScenarioItem &step : m_lesson.steps) {
            checkTarget(step, QStringLiteral("jump"), step.jump);
            checkTarget(step, QStringLiteral("jumpNo"), step.jumpNo);
        }
        follow();
        for (int i = 0; i < m_lesson.steps.size(); ++i) {
            if (!m_reached.at(i)) {
                report(m_lesson.steps.at(i), {},
                       QStringLiteral("no way through the lesson reaches this step"));
            }
        }
        return m_findings;
    }

private:
    void index(int at)
    {
        const ScenarioItem &step = m_lesson.steps.at(at);
        if (step.id < 0) {
            report(step, QStringLiteral("id"), QStringLiteral("an id is 0 or more"));
        } else if (m_indexById.contains(step.id)) {
            report(step, QStringLiteral("id"),
                   QStringLiteral("the item in line %1 has the same id")
                       .arg(m_lesson.steps.at(m_indexById.value(step.id)).line));
        } else {
            m_indexById.insert(step.id, at);
        }
    }

    void checkTarget(const ScenarioItem &step, const QString &field, int target)
    {
        if (target != -1 && !m_indexById.contains(target)) {
            report(step, field, QStringLiteral("no item has the id %1").arg(target));
        }
    }

    /// Index of the step behind the one at @p at, without a question between them; -1 for a jump to nowhere.
    [[nodiscard]] int next(int at) const
    {
        const int jump = m_lesson.steps.at(at).jump;
        return jump == -1 ? at + 1 : m_indexById.value(jump, -1);
    }

    /// Marks every step that can be reached from the first.
    void follow()
    {
        QVector<int> open;
        const auto visit = [&](int at) {
            if (at >= 0 && at < m_reached.size() && !m_reached.at(at)) {
                m_reached[at] = true;
                open.append(at);
            }
        };
        visit(0);
        while (!open.isEmpty()) {
            const int at = open.takeLast();
            const ScenarioItem &step = m_lesson.steps.at(at);
            visit(next(at));
            if (step.condition == QLatin1String("yesNo")) {
                visit(step.jumpNo == -1 ? at + 1 : m_indexById.value(step.jumpNo, -1));
            }
        }
    }

    void report(const ScenarioItem &step, const QString &field, const QString &text)
    {
        m_findings.append({Finding::Kind::kError, m_lesson.file, step.line,
                           QStringLiteral("item %1").arg(step.id), field, text});
    }

    const Lesson &m_lesson;
    QHash<int, int> m_indexById;
    QVector<bool> m_reached;
    Findings m_findings;
};

} // namespace

Findings checkFlow(const Lesson &lesson)
{
    return FlowChecker(lesson).run();
}
