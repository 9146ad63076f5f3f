#include "player/battle/TroopPages.h"

#include "player/battle/Fighters.h"
#include "player/game/GameState.h"

namespace player {

namespace {

enum Span { kOnceABattle = 0, kOnceATurn = 1 };

/// Whether an actor's HP are that low; she need not be among those who fight.
bool hasHpUpTo(const GameState &state, const Fighters &fighters, int actor, int percent)
{
    const int place = int(state.fighters().indexOf(actor));
    return place >= 0 && fighters.hasHpUpTo({false, place}, percent);
}

bool hold(const TroopConditions &conditions, const Fighters &fighters, const GameState &state, int turn)
{
    const Fighter enemy{true, conditions.enemy};
    if (conditions.turn >= 0 && turn < conditions.turn) {
        return false;
    }
    if (conditions.enemyHp >= 0 &&
        (fighters.enemy(enemy) == nullptr || !fighters.hasHpUpTo(enemy, conditions.enemyHp))) {
        return false;
    }
    if (conditions.actorHp >= 0 && !hasHpUpTo(state, fighters, conditions.actor, conditions.actorHp)) {
        return false;
    }
    return conditions.switchId <= 0 || state.isOn(conditions.switchId);
}

} // namespace

int TroopPages::next(const Fighters &fighters, const GameState &state, int turn)
{
    for (int page = 0; page < m_pages.size(); ++page) {
        const TroopPage &its = m_pages.at(page);
        const bool isDone = m_doneNow.contains(page) || (its.span == kOnceABattle && m_done.contains(page)) ||
                            (its.span == kOnceATurn && m_doneInTurn.contains(page));
        if (!isDone && hold(its.conditions, fighters, state, turn)) {
            m_doneNow.insert(page);
            m_doneInTurn.insert(page);
            m_done.insert(page);
            return page;
        }
    }
    return -1;
}

} // namespace player
