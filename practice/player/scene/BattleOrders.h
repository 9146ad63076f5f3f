#pragma once

#include "player/script/Battlefield.h"

namespace player {

class Battle;
class Random;
struct GameData;

/// Lets the commands of battle events change a battle, which has to outlive it.
class BattleOrders : public Battlefield
{
public:
    BattleOrders(Battle *battle, const GameData *data, Random *random)
        : m_battle(battle)
        , m_data(data)
        , m_random(random)
    {
    }

    bool changeHp(int enemy, int amount, bool mayKnockOut) override;
    bool changeMp(int enemy, int amount) override;
    bool addState(int enemy, int state) override;
    bool removeState(int enemy, int state) override;
    bool recover(int enemy) override;
    bool appear(int enemy) override;
    bool forceAction(bool isActor, int who, int skill, int target) override;
    void abort() override;
    [[nodiscard]] bool hasAppeared(int enemy) const override;
    [[nodiscard]] bool hasState(int enemy, int state) const override;

private:
    /// Does it to one, or to all that are there; false when that is nobody.
    template<typename Deal>
    bool each(int enemy, const Deal &deal);

    Battle *m_battle;
    const GameData *m_data;
    Random *m_random;
};

} // namespace player
