#include "player/battle/Spoils.h"

#include "player/battle/Fighters.h"
#include "player/game/GameData.h"
#include "player/game/GameState.h"

namespace player {

namespace {

constexpr int kMostPoints = 9999999;

void add(int *sum, int amount)
{
    *sum = int(qBound(qint64(0), qint64(*sum) + amount, qint64(kMostPoints)));
}

} // namespace

Spoils Spoils::of(const GameData &data, const Fighters &fighters, GameState *state)
{
    Spoils spoils;
    const QVector<Fighter> troop = fighters.present(true);
    for (const Fighter &fighter : troop) {
        const Enemy *enemy = fighters.enemy(fighter);
        const EnemyEntry *entry = data.enemies.find(enemy->id);
        if (entry == nullptr || !enemy->isKnockedOut()) {
            continue;
        }
        add(&spoils.exp, entry->exp);
        add(&spoils.gold, entry->gold);
        for (const Drop &drop : entry->drops) {
            if (drop.denominator > 0 && data.items.find(drop.item) != nullptr &&
                state->random.oneIn(drop.denominator)) {
                ++spoils.items[drop.item];
            }
        }
    }
    return spoils;
}

QVector<Rise> share(const Spoils &spoils, const GameData &data, const Fighters &fighters, GameState *state)
{
    state->addGold(spoils.gold);
    for (auto item = spoils.items.cbegin(); item != spoils.items.cend(); ++item) {
        state->addGoods(Goods::kItem, item.key(), item.value());
    }
    QVector<Rise> rises;
    const QVector<Fighter> party = fighters.standing(false);
    for (const Fighter &fighter : party) {
        Actor *actor = fighters.actor(fighter);
        const qint64 exp = qint64(spoils.exp) * Actor::rate(actor->traits(data), "expRate") / 100;
        Rise rise{actor->id, int(qMin<qint64>(exp, kMostPoints)), actor->level, actor->level, {}};
        const QVector<int> before = actor->skills;
        actor->changeExp(rise.exp, data);
        rise.to = actor->level;
        for (const int skill : qAsConst(actor->skills)) {
            if (!before.contains(skill)) {
                rise.skills.append(skill);
            }
        }
        rises.append(rise);
    }
    return rises;
}

} // namespace player
