#pragma once

#include "player/battle/Fighter.h"
#include "player/game/Database.h"

#include <QVector>

namespace player {

struct GameData;
class Fighters;
class Random;

/// What attacks and the effects of skills and items do to somebody. No chance but how long a state lasts.
namespace Effects {

/// HP that a blow costs: twice the attack less the defense, but 1 at least.
[[nodiscard]] int blow(int attack, int defense);

/// Turns, or actions, that a state lasts, within the bounds that it has; 0 when it does not end by itself.
[[nodiscard]] int turnsOf(const StateEntry &state, Random *random);

/// Whether a skill is an attack with the weapon at hand: it concerns enemies, and has no effect of its own
/// but an element.
[[nodiscard]] bool isAttack(const SkillEntry &skill);
/// Whether they help those who have fallen.
[[nodiscard]] bool revive(const NamedNumbers &effects);
/// Whom an item is for: one that takes points away, unless it says otherwise, for an enemy.
[[nodiscard]] int scopeOf(const ItemEntry &item);
[[nodiscard]] QVector<int> valuesOf(const NamedNumbers &numbers, const char *name);

/// Whoever deals and suffers.
struct Stroke
{
    const GameData &data;
    Fighters *fighters;
    Random *random;
    Fighter doer;
    Fighter target;
    /// The target guards: damage is halved, rounded up.
    bool isGuarding = false;
};

/// A blow of the doer's weapon, or of these elements.
[[nodiscard]] QVector<Note> strike(const Stroke &stroke, const QVector<int> &elements);
/// The common events among them are left to the caller.
[[nodiscard]] QVector<Note> apply(const Stroke &stroke, const NamedNumbers &effects);

} // namespace Effects

} // namespace player
