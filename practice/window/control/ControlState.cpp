#include "window/control/ControlState.h"

#include <algorithm>

namespace {

bool hangOn(const QVector<ControlRequirement> &requirements, const QString &field)
{
    const auto isOfField = [&field](const ControlRequirement &requirement) {
        return requirement.field == field;
    };
    return !field.isEmpty() && std::any_of(requirements.cbegin(), requirements.cend(), isOfField);
}

} // namespace

bool canRun(const ControlAction &action, const EditorWindow *window)
{
    const ControlAction *done = window->chosen(action);
    return done == nullptr || done->run.isEmpty() ||
           window->project().commands().canRun(done->run.constFirst(), window->layer());
}

ControlMaker withState(const ControlMaker &maker, const ControlReader &reader)
{
    return [maker, shown = reader.description().shownWhen, enabled = reader.description().enabledWhen,
            click = reader.description().click, isOfUse = reader.isOfUse()](EditorWindow *window) {
        QWidget *control = maker(window);
        if (!shown.isEmpty()) {
            const auto takeTurns = [control, window, shown] {
                const bool isThere = window->meets(shown);
                if (isThere && window->isAway(control) && hangOn(shown, window->changing())) {
                    window->tellOfComing(control);
                }
                window->setAway(control, !isThere);
            };
            QObject::connect(window, &EditorWindow::arranged, control, takeTurns);
            takeTurns();
        }
        keepFresh(control, window, [control, window, enabled, click, isOfUse] {
            control->setEnabled(window->meets(enabled) && canRun(click, window) &&
                                (!isOfUse || isOfUse(window)));
        });
        return control;
    };
}
