#pragma once

#include "player/run/WordTable.h"

namespace player {

/// The words of a script that do what a person does, such as "walk to 12 8".
void addSteps(WordTable *table);

/// Those that make the game so, such as "set switch 3 on".
void addChanges(WordTable *table);

} // namespace player
