#pragma once

#include "player/run/WordTable.h"

namespace player {

/// The words of a script that expect something of the state of the game, such as "expect switch 4 on". What
/// does not hold at once is waited for, ten seconds of the game at most.
void addExpectations(WordTable *table);

/// Those about what is seen and heard, such as "expect message".
void addExpectationsOfSight(WordTable *table);

/// Those about actors and battles, such as "expect level 1 = 3".
void addExpectationsOfBattle(WordTable *table);

} // namespace player
