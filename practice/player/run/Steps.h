#pragma once

#include "player/run/WordTable.h"

namespace player {

/// The words of a script that do something, such as "walk to 12 8".
void addSteps(WordTable *table);

} // namespace player
