#pragma once

#include "player/game/GameData.h"

/// The lists of the database, as far as their files are there and are lists.
namespace player::DatabaseReader {

void read(const GameData::Files &files, GameData *data);

} // namespace player::DatabaseReader
