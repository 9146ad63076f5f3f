#pragma once

#include "window/control/ControlReader.h"

/// The map on show, which is drawn on; "target" is its word in what it reports.
[[nodiscard]] ControlMaker readMap(ControlReader &reader);
