#pragma once

#include "player/battle/Fighters.h"

namespace player {

class Random;

/// What enemies, and actors who act by themselves, do in a turn.
namespace EnemyPlan {

/// One of the actions of the enemy's pattern, of which those count whose condition holds and whose skill it
/// can use: each as often as its priority is of all of them. Without any, it attacks.
[[nodiscard]] Deed choose(const GameData &data, const Fighter &fighter, int turn, Fighters *fighters,
                          Random *random);

/// The skill of an action is none of the database, for every action of the enemy with this number.
[[nodiscard]] bool leadsNowhere(const GameData &data, int enemy);

} // namespace EnemyPlan

} // namespace player
