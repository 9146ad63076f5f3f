#pragma once

namespace player {

/// What the commands of battle events do to a battle. Enemies are named by their place in the troop, from 0;
/// -1 is all of them. A place that nobody has is false, and nothing is done.
class Battlefield
{
public:
    Battlefield() = default;
    Battlefield(const Battlefield &) = delete;
    Battlefield &operator=(const Battlefield &) = delete;
    virtual ~Battlefield();

    virtual bool changeHp(int enemy, int amount, bool mayKnockOut) = 0;
    virtual bool changeMp(int enemy, int amount) = 0;
    virtual bool addState(int enemy, int state) = 0;
    virtual bool removeState(int enemy, int state) = 0;
    virtual bool recover(int enemy) = 0;
    virtual bool appear(int enemy) = 0;
    /// @p actor is its number, @p target a place in the troop or party; -1 random, -2 the last one.
    virtual bool forceAction(bool isActor, int who, int skill, int target) = 0;
    virtual void abort() = 0;

    [[nodiscard]] virtual bool hasAppeared(int enemy) const = 0;
    [[nodiscard]] virtual bool hasState(int enemy, int state) const = 0;
};

} // namespace player
