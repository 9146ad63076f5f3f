#pragma once

#include "window/control/ControlReader.h"

/// A number within a "range", with a "suffix": "field".
[[nodiscard]] ControlMaker readSpinBox(ControlReader &reader);
