#include "player/scene/BattleOrders.h"

#include "player/battle/Battle.h"
#include "player/battle/Effects.h"
#include "player/game/Actor.h"
#include "player/game/GameData.h"

namespace player {

template<typename Deal>
bool BattleOrders::each(int enemy, const Deal &deal)
{
    const QVector<Fighter> troop = m_battle->fighters().present(true);
    bool isThere = false;
    for (const Fighter &fighter : troop) {
        if (enemy == -1 || fighter.place == enemy) {
            deal(fighter);
            isThere = true;
        }
    }
    return isThere;
}

bool BattleOrders::changeHp(int enemy, int amount, bool mayKnockOut)
{
    return each(enemy, [&](const Fighter &fighter) {
        // Who has fallen stays so: only 334 and a state taken away raise it.
        if (m_battle->fighters().isStanding(fighter)) {
            m_battle->fighters().changeHp(fighter, amount, mayKnockOut);
        }
    });
}

bool BattleOrders::changeMp(int enemy, int amount)
{
    return each(enemy, [&](const Fighter &fighter) { m_battle->fighters().changeMp(fighter, amount); });
}

bool BattleOrders::addState(int enemy, int state)
{
    const StateEntry *entry = m_data->states.find(state);
    return entry != nullptr && each(enemy, [&](const Fighter &fighter) {
               m_battle->fighters().addState(fighter, state, Effects::turnsOf(*entry, m_random));
           });
}

bool BattleOrders::removeState(int enemy, int state)
{
    return each(enemy, [&](const Fighter &fighter) { m_battle->fighters().removeState(fighter, state); });
}

bool BattleOrders::recover(int enemy)
{
    return each(enemy, [&](const Fighter &fighter) { m_battle->fighters().recover(fighter); });
}

bool BattleOrders::appear(int enemy)
{
    Enemy *its = m_battle->fighters().enemy({true, enemy});
    if (its != nullptr) {
        its->hasAppeared = true;
    }
    return its != nullptr;
}

bool BattleOrders::forceAction(bool isActor, int who, int skill, int target)
{
    Fighter doer{!isActor, who};
    if (isActor) {
        const QVector<Fighter> party = m_battle->fighters().party();
        doer = {};
        for (const Fighter &fighter : party) {
            const Actor *actor = m_battle->fighters().actor(fighter);
            doer = actor != nullptr && actor->id == who ? fighter : doer;
        }
    }
    const SkillEntry *entry = m_data->skills.find(skill);
    const bool concernsEnemies = entry != nullptr && entry->scope == kScopeEnemy;
    const bool targetIsEnemy = concernsEnemies == isActor;
    return m_battle->force({Deed::Kind::kSkill, doer, skill, m_battle->forcedTarget(targetIsEnemy, target)});
}

void BattleOrders::abort()
{
    m_battle->abort();
}

bool BattleOrders::hasAppeared(int enemy) const
{
    const Enemy *its = m_battle->fighters().enemy({true, enemy});
    return its != nullptr && its->hasAppeared;
}

bool BattleOrders::hasState(int enemy, int state) const
{
    const Enemy *its = m_battle->fighters().enemy({true, enemy});
    return its != nullptr && its->hasState(state);
}

} // namespace player
