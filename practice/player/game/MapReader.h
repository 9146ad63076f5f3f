#pragma once

#include "player/game/GameData.h"

/// The maps, and where one can walk on them.
namespace player::MapReader {

/// @p tiles as GameData::read() has them.
void read(const GameData::Files &files, const QStringList &tiles, GameData *data);

/// Number of the map in a file of this name, such as "data/Map012.json"; 0 for another file.
[[nodiscard]] int mapNumber(const QString &file);

} // namespace player::MapReader
