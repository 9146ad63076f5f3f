#pragma once

#include "window/control/ControlReader.h"

/// Whether there is anything to do for the first command of the action; the others may need what it does.
[[nodiscard]] bool canRun(const ControlAction &action, const EditorWindow *window);

/// Makes the control of @p maker so that it is there only while the description has it shown, and grey while
/// it is of no use: while what enables it does not hold, what a click on it runs cannot run, or its field, or
/// what a click on it begins with, is that of an entry of a list without any.
[[nodiscard]] ControlMaker withState(const ControlMaker &maker, const ControlReader &reader);
