#pragma once

#include "player/game/GameData.h"

#include <memory>

/// Reads a project's data files, once and defensively: whatever they hold, the result can be played, if only
/// to say what is wrong.
namespace player::GameReader {

/// @p tiles are the names of the drawings of the tiles, the first one being tile 1: they decide where one can
/// walk.
[[nodiscard]] std::shared_ptr<const GameData> read(const GameData::Files &files, const QStringList &tiles);

} // namespace player::GameReader
