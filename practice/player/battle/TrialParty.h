#pragma once

namespace player {

struct GameData;
struct GameState;

/// Lets the party be the one that the database has for trial battles, at its levels, with its equipment and
/// all of its points. Without such a party it stays as it is.
void joinTrialParty(const GameData &data, GameState *state);

} // namespace player
