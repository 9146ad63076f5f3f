#pragma once

#include "host/EditorState.h"
#include "window/ControlFinder.h"

class EditorWindows;

/// Takes the state of the editor as a value, and gives it back: project, tools, and the open windows with
/// what was typed into them.
class StateKeeper
{
public:
    /// @p windows outlive the keeper. @p popUp shows the context menu with a name at a place on the screen.
    StateKeeper(EditorWindows *windows, const EditorView &view,
                std::function<void(const QString &, const QPoint &)> popUp);

    [[nodiscard]] EditorState state() const;
    /// Changes with the project's data and with what was typed into the open dialogs.
    [[nodiscard]] QString dataMark() const;
    /// False when the project cannot be opened any more; then nothing has changed but that dialogs are
    /// closed.
    bool restore(const EditorState &state) const;

private:
    /// Where the main window's contents begin on the screen; menus stand where they stood in it.
    [[nodiscard]] QPoint mainCorner() const;

    EditorWindows *m_windows;
    EditorView m_view;
    std::function<void(const QString &, const QPoint &)> m_popUp;
};
