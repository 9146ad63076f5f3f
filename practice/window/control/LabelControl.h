#pragma once

#include "window/control/ControlReader.h"

/// A text: its "label", or what stands in a "field".
[[nodiscard]] ControlMaker readLabel(ControlReader &reader);
