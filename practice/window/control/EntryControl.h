#pragma once

#include "window/control/ControlReader.h"

/// An entry of a context menu.
[[nodiscard]] ControlMaker readEntry(ControlReader &reader);
