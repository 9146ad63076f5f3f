#pragma once

#include "player/game/GameData.h"

/// What entries of the database and maps say of other entries, and of what there is.
namespace player::References {

/// Adds a problem for each one that names an entry, or anything else, which is not there, or that test play
/// makes no use of; it tells what the game does instead.
void check(GameData *data);

} // namespace player::References
