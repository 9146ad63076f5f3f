#pragma once

#include "player/script/World.h"

#include <functional>

/// How characters walk: a tick at a time, by the route that a command gave, or by what their page says.
namespace player::Walker {

/// Heard where the route has it.
using Play = std::function<void(const Sound &)>;

/// The hero, who walks by routes and by step() only.
void tickHero(World *world, const Play &play);
/// All events.
void tickEvents(World *world, const Play &play);

/// Begins a step in a direction, or turns there if something is in the way; false then.
bool step(Character *who, int direction, World *world);
/// Ticks that a step takes at this speed of the data files.
[[nodiscard]] int ticksPerCell(int speed);

} // namespace player::Walker
