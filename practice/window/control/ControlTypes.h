#pragma once

#include "window/control/ControlReader.h"

/// All types of controls there are.
[[nodiscard]] QStringList controlTypes();

/// Reads a control of any type. Each thing that is wrong is a line in @p errors; the maker is then of no use.
[[nodiscard]] ControlMaker readControl(const ControlDescription &description, const ControlContext &context,
                                       QStringList *errors);
