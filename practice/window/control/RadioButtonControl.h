#pragma once

#include "window/control/ControlReader.h"

/// A button that is on while "field" has its "value"; those of one field in one window belong together. It
/// reports its "index".
[[nodiscard]] ControlMaker readRadioButton(ControlReader &reader);
