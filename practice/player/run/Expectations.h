#pragma once

#include "player/run/WordTable.h"

namespace player {

/// The words of a script that expect something, such as "expect switch 4 on". What does not hold at once is
/// waited for, ten seconds of the game at most.
void addExpectations(WordTable *table);

} // namespace player
