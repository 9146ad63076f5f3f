#pragma once

#include "window/control/ControlReader.h"

/// The values of levels 1 to 99: "field" is the value of level 1 and what is added for each level after it.
[[nodiscard]] ControlMaker readCurve(ControlReader &reader);
