#pragma once

#include "player/game/GameData.h"

/// What entries of the database say of one another.
namespace player::References {

/// Adds a problem for each entry that names one which is not there, and what becomes of that.
void check(GameData *data);

} // namespace player::References
