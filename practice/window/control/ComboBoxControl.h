#pragma once

#include "window/control/ControlReader.h"

/// A list that opens: "field" has the value of one of the "choices", or the number of an entry of a "source".
[[nodiscard]] ControlMaker readComboBox(ControlReader &reader);
