#pragma once

#include "window/control/ControlReader.h"

/// A list or tree of rows, "source". The current row is kept for the list, or is the one whose number stands
/// in a "field".
[[nodiscard]] ControlMaker readList(ControlReader &reader);
