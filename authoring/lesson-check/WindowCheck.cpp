#include "lesson-check/WindowCheck.h"

#include "lesson/Condition.h"

#include <QSet>

#include <algorithm>
#include <optional>

namespace {

using Type = Condition::Type;

class WindowChecker
{
public:
    WindowChecker(const Lesson &lesson, const DescriptionSet &windows)
        : m_lesson(lesson)
        , m_windows(windows)
        , m_open(lesson.steps.size())
    {
    }

    Findings run()
    {
        reach(0, {QStringLiteral("MainWindow")});
        while (!m_due.isEmpty()) {
            pass(m_due.takeLast());
        }
        for (int i = 0; i < m_lesson.steps.size(); ++i) {
            check(i);
        }
        return m_findings;
    }

private:
    [[nodiscard]] const ScenarioItem &step(int at) const { return m_lesson.steps.at(at); }

    /// The step at @p at can begin with these windows open.
    void reach(int at, const QSet<QString> &open)
    {
        if (at < 0 || at >= m_lesson.steps.size()) {
            return;
        }
        std::optional<QSet<QString>> &known = m_open[at];
        if (known && known->contains(open)) {
            return;
        }
        known = known.value_or(QSet<QString>()) + open;
        m_due.append(at);
    }

    void pass(int at)
    {
        const QSet<QString> open = after(at);
        reach(target(at, step(at).jump), open);
        if (step(at).condition == QLatin1String("yesNo")) {
            reach(target(at, step(at).jumpNo), open);
        }
    }

    [[nodiscard]] int target(int at, int jump) const
    {
        if (jump == LessonWords::kNoJump) {
            return at + 1;
        }
        const auto isIt = [jump](const ScenarioItem &other) {
            return other.id == jump;
        };
        const auto found = std::find_if(m_lesson.steps.cbegin(), m_lesson.steps.cend(), isIt);
        return found == m_lesson.steps.cend() ? -1 : int(found - m_lesson.steps.cbegin());
    }

    /// What can be open when the step is over.
    [[nodiscard]] QSet<QString> after(int at) const
    {
        QSet<QString> open = *m_open.at(at);
        const std::optional<Condition> condition = Condition::parse(step(at).condition);
        const QVector<ControlDescription> controls = usedControls(step(at), condition);
        for (const ControlDescription &control : controls) {
            const ControlAction &action = actionOf(control, step(at).icon);
            if (action.close && controls.size() == 1) {
                open.remove(step(at).windowKey);
            }
            if (!action.open.isEmpty()) {
                open.insert(action.open);
            }
        }
        if (condition && condition->type() == Type::kWindowState) {
            if (condition->value() == QLatin1String("open")) {
                open.insert(condition->target());
            } else {
                open.remove(condition->target());
            }
        }
        return open;
    }

    /// Who types ends it with Enter; but a number or a text that is long enough is there without it.
    static bool endsWithEnter(const ScenarioItem &item, const Condition &condition)
    {
        return item.icon == QLatin1String("keyboard") && condition.type() != Type::kSpinBox &&
               condition.type() != Type::kTextLength;
    }

    /// A list or a map takes Enter as a double click; from elsewhere it goes to the default button.
    static bool takesEnter(const ControlDescription &control) { return !control.doubleClick.isEmpty(); }

    static const ControlAction &actionOf(const ControlDescription &control, const QString &icon)
    {
        if (icon == QLatin1String("doubleClick") ||
            (icon == QLatin1String("keyboard") && takesEnter(control))) {
            return control.doubleClick;
        }
        return icon == QLatin1String("rightClick") ? control.contextMenu : control.click;
    }

    /// The controls of which the person uses one in the step.
    [[nodiscard]] QVector<ControlDescription> usedControls(const ScenarioItem &item,
                                                           const std::optional<Condition> &condition) const
    {
        const bool isRead =
            !condition || condition->type() == Type::kNext || condition->type() == Type::kYesNo;
        if (isRead || item.hasNoPosition()) {
            return {};
        }
        const QPoint tip = QPoint(item.x, item.y) + LessonWords::kTip;
        QVector<ControlDescription> pointed;
        QVector<ControlDescription> byDefault;
        const QVector<ControlDescription> controls = m_windows.controlsIn(item.windowKey);
        for (const ControlDescription &control : controls) {
            if (control.geometry.contains(tip)) {
                pointed.append(control);
            }
            if (control.own.object.value(QLatin1String("default")).toBool()) {
                byDefault.append(control);
            }
        }
        const bool goesToDefault =
            endsWithEnter(item, *condition) && std::none_of(pointed.cbegin(), pointed.cend(), &takesEnter);
        return goesToDefault ? byDefault : pointed;
    }

    void check(int at)
    {
        const std::optional<Condition> condition = Condition::parse(step(at).condition);
        const bool closes = condition && condition->type() == Type::kWindowState &&
                            condition->value() == QLatin1String("close");
        if (closes && m_open.at(at) && !m_open.at(at)->contains(condition->target())) {
            m_findings.append(
                {Finding::Kind::kError, m_lesson.file, step(at).line,
                 QStringLiteral("item %1").arg(step(at).id), QStringLiteral("condition"),
                 QStringLiteral(
                     "\"%1\" is not open here, so the step would be passed at once; wait for it to "
                     "open in a step before")
                     .arg(condition->target())});
        }
    }

    const Lesson &m_lesson;
    const DescriptionSet &m_windows;
    /// By step: what can be open when it begins; nothing for one that no way reaches.
    QVector<std::optional<QSet<QString>>> m_open;
    QVector<int> m_due;
    Findings m_findings;
};

} // namespace

Findings checkWindows(const Lesson &lesson, const DescriptionSet &windows)
{
    return WindowChecker(lesson, windows).run();
}
