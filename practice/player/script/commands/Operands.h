#pragma once

#include "player/game/GameState.h"
#include "player/script/Interpreter.h"

/// What several commands say in the same way.
namespace player::Operands {

/// What "by" makes of the number behind it: 0 the number itself, else the variable of that number; 0, with
/// a problem told, for one that nothing has.
[[nodiscard]] int given(Interpreter &run, int by, int value);
/// That, taken away where "change" says so: 0 increase, 1 decrease.
[[nodiscard]] int change(Interpreter &run, int change, int by, int amount);
/// The actors that "by" and "actor" mean, 0 being all of the party. Nobody, with a problem told, for numbers
/// that nobody has.
[[nodiscard]] QVector<Actor *> actors(Interpreter &run, int by, int actor);
/// The one actor who is meant, or nobody as above.
[[nodiscard]] QVector<Actor *> oneActor(Interpreter &run, int actor);
/// How two numbers compare: 0 =, 1 ≥, 2 ≤, 3 >, 4 <, 5 ≠.
[[nodiscard]] bool compare(int left, int comparison, int right);
/// Whether switches or variables may have this number; tells a problem otherwise.
[[nodiscard]] bool isNumber(Interpreter &run, int id);

} // namespace player::Operands
