#pragma once

#include "window/control/ControlReader.h"

/// A list or tree of rows: those of a "source", or "choices". The current row is kept for the source, or is
/// the one whose number or value stands in a "field", which choices need.
[[nodiscard]] ControlMaker readList(ControlReader &reader);
