#pragma once

#include "window/control/ControlReader.h"

/// A push button; "default" lets the return key press it.
[[nodiscard]] ControlMaker readButton(ControlReader &reader);
