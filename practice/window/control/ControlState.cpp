#include "window/control/ControlState.h"

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
                window->setAway(control, !window->meets(shown));
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
