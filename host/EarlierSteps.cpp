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

} // namespace

EarlierSteps::EarlierSteps(const HostEditor *editor, const Scenario &scenario, int index)
    : m_editor(editor)
    , m_scenario(scenario)
    , m_index(index)
{
}

ControlSpot EarlierSteps::openingOf(const QString &windowKey) const
{
    for (int index = m_index - 1; index >= 0; --index) {
        const Step &step = m_scenario.step(index);
        if (opens(step, windowKey)) {
            return m_editor->controlFor(step).value_or(ControlSpot());
        }
    }
    return {};
}
