#pragma once

#include "window/control/ControlReader.h"

/// A row of "tabs"; the current one is that of a "source".
[[nodiscard]] ControlMaker readTabs(ControlReader &reader);
