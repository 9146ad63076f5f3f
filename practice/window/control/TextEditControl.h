#pragma once

#include "window/control/ControlReader.h"

/// Several lines of text: "field".
[[nodiscard]] ControlMaker readTextEdit(ControlReader &reader);
