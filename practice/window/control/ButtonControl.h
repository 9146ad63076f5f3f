#pragma once

#include "window/control/ControlReader.h"

/// A push button; "default" lets the return key press it. It may have an "action".
[[nodiscard]] ControlMaker readButton(ControlReader &reader);
