#pragma once

#include "Tutorial/overlay/IndicatorUpdate.h"

class CommandFields;

/// The command `indicator` `update` as a value. Whatever a field says is taken: one that is missing or no
/// number reads as empty text or 0, and bits of the flags that mean nothing are ignored.
[[nodiscard]] IndicatorUpdate indicatorUpdate(const CommandFields &fields);
