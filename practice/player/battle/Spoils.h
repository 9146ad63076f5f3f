#pragma once

#include <QMap>
#include <QVector>

namespace player {

struct GameData;
struct GameState;
class Fighters;

/// What a battle that is won brings.
struct Spoils
{
    int exp = 0;
    int gold = 0;
    /// Numbers of items, and how many of each.
    QMap<int, int> items;

    /// Of all enemies that have fallen.
    [[nodiscard]] static Spoils of(const GameData &data, const Fighters &fighters, GameState *state);
};

/// What it made of an actor.
struct Rise
{
    int actor = 0;
    int exp = 0;
    /// Levels before and after.
    int from = 0;
    int to = 0;
    /// Skills that were learned.
    QVector<int> skills;
};

/// Gives the party what it has won: the EXP in full to each who stands.
[[nodiscard]] QVector<Rise> share(const Spoils &spoils, const GameData &data, const Fighters &fighters,
                                  GameState *state);

} // namespace player
