#include "player/battle/EnemyPlan.h"

#include "player/game/GameData.h"
#include "player/game/Random.h"

#include <algorithm>

namespace player::EnemyPlan {

namespace {

constexpr int kHighestPriority = 100;

bool holds(const EnemyAction &action, const Fighter &fighter, int turn, const Fighters &fighters)
{
    switch (action.conditionType) {
    case 1:
        return turn >= action.conditionValue;
    case 2:
        return fighters.hasHpUpTo(fighter, action.conditionValue);
    case 3:
        return fighters.states(fighter).contains(action.conditionValue);
    default:
        return true;
    }
}

int priority(const EnemyAction &action)
{
    return qBound(0, action.rating, kHighestPriority);
}

} // namespace

Deed choose(const GameData &data, const Fighter &fighter, int turn, Fighters *fighters, Random *random)
{
    const Deed attack{Deed::Kind::kAttack, fighter, 0, {}};
    Enemy *enemy = fighters->enemy(fighter);
    const EnemyEntry *entry = enemy != nullptr ? data.enemies.find(enemy->id) : nullptr;
    if (entry == nullptr) {
        return attack;
    }
    QVector<int> possible;
    int priorities = 0;
    for (int place = 0; place < entry->actions.size(); ++place) {
        const EnemyAction &action = entry->actions.at(place);
        const SkillEntry *skill = data.skills.find(action.skill);
        if (skill != nullptr && fighters->canUse(fighter, *skill) && !enemy->done.contains(place) &&
            holds(action, fighter, turn, *fighters)) {
            possible.append(place);
            priorities += priority(action);
        }
    }
    if (priorities == 0) {
        return attack;
    }
    int left = random->between(1, priorities);
    const auto chosen = std::find_if(possible.cbegin(), possible.cend(), [&](int place) {
        left -= priority(entry->actions.at(place));
        return left <= 0;
    });
    const EnemyAction &action = entry->actions.at(*chosen);
    if (action.onlyOnce) {
        enemy->done.insert(*chosen);
    }
    return {Deed::Kind::kSkill, fighter, action.skill, {}};
}

bool leadsNowhere(const GameData &data, int enemy)
{
    const EnemyEntry *entry = data.enemies.find(enemy);
    return entry != nullptr && !entry->actions.isEmpty() &&
           std::none_of(entry->actions.cbegin(), entry->actions.cend(),
                        [&](const EnemyAction &action) { return data.skills.find(action.skill) != nullptr; });
}

} // namespace player::EnemyPlan
