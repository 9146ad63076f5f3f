#pragma once

#include "window/control/ControlReader.h"

/// One line of text: "field".
[[nodiscard]] ControlMaker readLineEdit(ControlReader &reader);
