#pragma once

#include "window/control/ControlReader.h"

/// A map of which one cell is chosen: "map", "x" and "y" are the fields of its number, column and row;
/// "target" is its word in what it reports.
[[nodiscard]] ControlMaker readMapCell(ControlReader &reader);
