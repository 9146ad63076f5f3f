#pragma once

#include "window/control/ControlReader.h"

/// A button with an "icon" above its label, which "needs" a project or nothing.
[[nodiscard]] ControlMaker readToolButton(ControlReader &reader);
