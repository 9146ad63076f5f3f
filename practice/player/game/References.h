#pragma once

#include "player/game/GameData.h"

/// What entries of the database and maps say of other entries.
namespace player::References {

/// Adds a problem for each one that names an entry which is not there; it tells what the game does instead.
void check(GameData *data);

} // namespace player::References
