#pragma once

#include "window/EditorWindow.h"

/// The widget of one control, wired to the project and to its window, which owns it. Name and geometry are
/// left to the caller. The description has been checked: its type is a known one.
QWidget *makeControl(const ControlDescription &control, const EditorWindowContext &context,
                     EditorWindow *window);
