#include "window/control/ControlState.h"

#include <algorithm>

namespace {

bool holds(const ControlRequirement &requirement, const EditorWindow *window)
{
    if (requirement.field.isEmpty()) {
        return requirement.rows.contains(window->currentRow(requirement.source));
    }
    const QJsonValue value = fieldValue(window, requirement.field);
    return std::any_of(requirement.values.cbegin(), requirement.values.cend(),
                       [&value](const QJsonValue &wished) { return ChoiceSets::isSame(value, wished); });
}

bool hold(const QVector<ControlRequirement> &requirements, const EditorWindow *window)
{
    return std::all_of(
        requirements.cbegin(), requirements.cend(),
        [window](const ControlRequirement &requirement) { return holds(requirement, window); });
}

} // namespace

bool canRun(const ControlAction &action, const EditorWindow *window)
{
    return action.run.isEmpty() ||
           window->project().commands().canRun(action.run.constFirst(), window->layer());
}

ControlMaker withState(const ControlMaker &maker, const ControlReader &reader)
{
    return [maker, shown = reader.description().shownWhen, enabled = reader.description().enabledWhen,
            click = reader.description().click, isOfUse = reader.isOfUse()](EditorWindow *window) {
        QWidget *control = maker(window);
        keepFresh(control, window, [control, window, shown, enabled, click, isOfUse] {
            if (!shown.isEmpty()) {
                control->setVisible(hold(shown, window));
            }
            control->setEnabled(hold(enabled, window) && canRun(click, window) &&
                                (!isOfUse || isOfUse(window)));
        });
        return control;
    };
}
