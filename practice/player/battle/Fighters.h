#pragma once

#include "player/battle/Enemy.h"
#include "player/battle/Fighter.h"

#include <QVector>

namespace player {

struct Actor;
struct GameState;

/// Who takes part in a battle: the party, whose figures stay in the state of the game, and the troop. Owns
/// the enemies; data and state have to outlive it.
class Fighters
{
public:
    /// The members of @p troop who are in the database.
    Fighters(const GameData &data, GameState *state, const TroopEntry *troop);

    [[nodiscard]] QVector<Fighter> party() const;
    [[nodiscard]] QVector<Fighter> troop() const;
    /// The party and then the troop.
    [[nodiscard]] QVector<Fighter> all() const { return party() + troop(); }
    [[nodiscard]] QVector<Fighter> side(bool ofEnemies) const { return ofEnemies ? troop() : party(); }
    /// Those of one side without enemies that have not appeared yet.
    [[nodiscard]] QVector<Fighter> present(bool ofEnemies) const;
    /// Those of one side that are there and have HP left.
    [[nodiscard]] QVector<Fighter> standing(bool ofEnemies) const;
    [[nodiscard]] bool isStanding(const Fighter &fighter) const;

    /// nullptr for a place that nobody has, or has on the other side.
    [[nodiscard]] Actor *actor(const Fighter &fighter) const;
    [[nodiscard]] Enemy *enemy(const Fighter &fighter);
    [[nodiscard]] const Enemy *enemy(const Fighter &fighter) const;
    /// Enemies of one kind are told apart by a letter: "Slime A", "Slime B".
    [[nodiscard]] QString name(const Fighter &fighter) const;

    // What is 0 or false for nobody.
    [[nodiscard]] int hp(const Fighter &fighter) const;
    [[nodiscard]] int maxHp(const Fighter &fighter) const;
    [[nodiscard]] int mp(const Fighter &fighter) const;
    [[nodiscard]] int maxMp(const Fighter &fighter) const;
    [[nodiscard]] int attack(const Fighter &fighter) const;
    [[nodiscard]] int defense(const Fighter &fighter) const;
    [[nodiscard]] int agility(const Fighter &fighter) const;
    [[nodiscard]] NamedNumbers traits(const Fighter &fighter) const;
    [[nodiscard]] QMap<int, int> states(const Fighter &fighter) const;
    /// HP left are at most so many per cent of all.
    [[nodiscard]] bool hasHpUpTo(const Fighter &fighter, int percent) const;
    /// The strictest of what its states forbid, as StateEntry has it.
    [[nodiscard]] int restriction(const Fighter &fighter) const;
    /// Whether it can pay for the skill, and nothing seals it.
    [[nodiscard]] bool canUse(const Fighter &fighter, const SkillEntry &skill) const;

    void changeHp(const Fighter &fighter, int amount, bool mayKnockOut = true);
    void changeMp(const Fighter &fighter, int amount);
    void addState(const Fighter &fighter, int state, int turns);
    void removeState(const Fighter &fighter, int state);
    /// The turns that a state of its still lasts; 0 for ever.
    void setTurns(const Fighter &fighter, int state, int turns);
    void recover(const Fighter &fighter);

private:
    /// Asks or changes the actor or the enemy, who have members of the same names.
    template<typename Answer, typename Question>
    Answer ask(const Fighter &fighter, const Question &question) const;
    template<typename Deal>
    void change(const Fighter &fighter, const Deal &deal);

    const GameData &m_data;
    GameState *m_state;
    QVector<Enemy> m_enemies;
};

} // namespace player
