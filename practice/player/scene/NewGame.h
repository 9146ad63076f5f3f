#pragma once

#include "player/scene/Game.h"

namespace player {

/// A game with all its scenes.
[[nodiscard]] std::unique_ptr<Game> newGame(std::shared_ptr<const GameData> data,
                                            const GameSettings &settings);

} // namespace player
