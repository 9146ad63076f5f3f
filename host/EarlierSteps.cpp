#include "host/EarlierSteps.h"

#include "host/HostEditor.h"

namespace {

bool opens(const Step &step, const QString &windowKey)
{
    using Type = Condition::Type;
    const Condition &condition = step.condition;
    const bool isOpening = condition.type() == Type::kPopup || (condition.type() == Type::kWindowState &&
                                                                condition.value() == QLatin1String("open"));
    return isOpening && condition.target() == windowKey && step.hasPosition();
}

bool begins(const Step &step, const QString &action)
{
    const Condition &condition = step.condition;
    return condition.type() == Condition::Type::kAction && condition.target() == action &&
           condition.value() == QLatin1String("open") && step.hasPosition();
}

} // namespace

EarlierSteps::EarlierSteps(const HostEditor *editor, const Scenario &scenario, int index)
    : m_editor(editor)
    , m_scenario(scenario)
    , m_index(index)
{
}

ControlSpot EarlierSteps::openingOf(const QString &windowKey) const
{
    return spotOfLast([&windowKey](const Step &step) { return opens(step, windowKey); });
}

ControlSpot EarlierSteps::beginningOf(const QString &action) const
{
    return spotOfLast([&action](const Step &step) { return begins(step, action); });
}

template<typename Is>
ControlSpot EarlierSteps::spotOfLast(Is is) const
{
    for (int index = m_index - 1; index >= 0; --index) {
        const Step &step = m_scenario.step(index);
        if (is(step)) {
            return m_editor->controlFor(step).value_or(ControlSpot());
        }
    }
    return {};
}
