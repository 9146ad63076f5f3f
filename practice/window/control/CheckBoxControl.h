#pragma once

#include "window/control/ControlReader.h"

/// A box that shows and changes a state: "field".
[[nodiscard]] ControlMaker readCheckBox(ControlReader &reader);
