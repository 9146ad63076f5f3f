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

/// Whether a list on the way of @p path has no entry that could be meant: nothing could be shown or changed.
bool leadsNowhere(const QString &path, const EditorWindow *window)
{
    const RowSources &sources = window->project().sources();
    if (!sources.isPath(path) || sources.place(path, window->layer())) {
        return false;
    }
    // A place that nobody has named is no list without entries.
    const QString root = path.section(QLatin1Char('/'), 0, 0);
    return root == QLatin1String("data") || sources.place(root, window->layer());
}

bool beginsNowhere(const ControlAction &action, const EditorWindow *window)
{
    const ControlAction *done = window->chosen(action);
    return done != nullptr &&
           std::any_of(done->begin.cbegin(), done->begin.cend(), [window](const QString &command) {
               return leadsNowhere(command.section(QLatin1Char(' '), 1, 1), window);
           });
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
            click = reader.description().click, isOfUse = reader.isOfUse(),
            field = reader.description().own.object.value(QLatin1String("field")).toString()](
               EditorWindow *window) {
        QWidget *control = maker(window);
        if (!shown.isEmpty()) {
            const auto takeTurns = [control, window, shown, field] {
                const bool isThere = window->meets(shown);
                if (!isThere && !window->isAway(control) && !field.isEmpty() &&
                    hangOn(shown, window->changing())) {
                    window->tellOfGoing(control, field);
                }
                if (isThere && window->isAway(control) && hangOn(shown, window->changing())) {
                    window->tellOfComing(control);
                }
                window->setAway(control, !isThere);
            };
            QObject::connect(window, &EditorWindow::arranged, control, takeTurns);
            takeTurns();
        }
        keepFresh(control, window, [control, window, enabled, click, isOfUse, field] {
            control->setEnabled(window->meets(enabled) && canRun(click, window) &&
                                !leadsNowhere(field, window) && !beginsNowhere(click, window) &&
                                (!isOfUse || isOfUse(window)));
        });
        return control;
    };
}
