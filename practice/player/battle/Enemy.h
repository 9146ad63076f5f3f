#pragma once

#include "player/game/Database.h"

#include <QMap>
#include <QPoint>
#include <QSet>

namespace player {

struct GameData;

/// A member of the troop, as it is at the moment of a battle. It has the figures of an Actor, by the same
/// names.
struct Enemy
{
    /// Number of its entry; one that the database lacks has no points and takes no part.
    int id = 0;
    QString name;
    QString image;
    /// In game pixels.
    QPoint at;
    int hp = 0;
    int mp = 0;
    /// As in Actor.
    QMap<int, int> states;
    bool hasAppeared = true;
    /// Places of the actions that it does once only, and has done.
    QSet<int> done;

    [[nodiscard]] static Enemy begin(const TroopMember &member, const GameData &data);

    [[nodiscard]] bool isKnockedOut() const { return hp <= 0; }
    [[nodiscard]] bool hasState(int state) const { return states.contains(state); }

    /// Its own and those of its states.
    [[nodiscard]] NamedNumbers traits(const GameData &data) const;
    [[nodiscard]] int maxHp(const GameData &data) const;
    [[nodiscard]] int maxMp(const GameData &data) const;
    [[nodiscard]] int attack(const GameData &data) const;
    [[nodiscard]] int defense(const GameData &data) const;
    [[nodiscard]] int agility(const GameData &data) const;

    void changeHp(int amount, const GameData &data, bool mayKnockOut = true);
    void changeMp(int amount, const GameData &data);
    void addState(int state, const GameData &data, int turns = 0);
    void removeState(int state, const GameData &data);
    void recoverAll(const GameData &data);
};

} // namespace player
