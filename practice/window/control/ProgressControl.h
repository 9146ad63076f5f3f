#pragma once

#include "window/control/ControlReader.h"

/// A bar that moves as long as something goes on.
[[nodiscard]] ControlMaker readProgress(ControlReader &reader);
