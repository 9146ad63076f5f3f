#pragma once

#include "window/control/ControlReader.h"

/// A "picture" of what has the number or name in a "field", or is the current row of a "source".
[[nodiscard]] ControlMaker readPicture(ControlReader &reader);
