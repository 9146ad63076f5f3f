#include "player/battle/Enemy.h"

#include "player/game/Actor.h"
#include "player/game/GameData.h"

namespace player {

namespace {

constexpr int kAgility = 10;
constexpr int kMostPoints = 99999;

int rated(int value, const NamedNumbers &traits, const char *rate)
{
    const qint64 percent = Actor::rate(traits, rate);
    return int(qBound(qint64(0), qint64(value * percent / 100), qint64(kMostPoints)));
}

int within(qint64 value, int most)
{
    return int(qBound(qint64(0), value, qint64(most)));
}

} // namespace

Enemy Enemy::begin(const TroopMember &member, const GameData &data)
{
    Enemy enemy;
    enemy.id = member.enemy;
    enemy.at = member.at;
    enemy.hasAppeared = !member.isHidden;
    if (const EnemyEntry *entry = data.enemies.find(member.enemy)) {
        enemy.name = entry->name;
        enemy.image = entry->image;
        enemy.hp = enemy.maxHp(data);
        enemy.mp = enemy.maxMp(data);
    }
    return enemy;
}

NamedNumbers Enemy::traits(const GameData &data) const
{
    const EnemyEntry *entry = data.enemies.find(id);
    NamedNumbers traits = entry != nullptr ? entry->traits : NamedNumbers();
    for (auto state = states.cbegin(); state != states.cend(); ++state) {
        if (const StateEntry *its = data.states.find(state.key())) {
            traits += its->traits;
        }
    }
    return traits;
}

int Enemy::maxHp(const GameData &data) const
{
    const EnemyEntry *entry = data.enemies.find(id);
    return entry != nullptr ? qMax(1, rated(entry->hp, traits(data), "hpRate")) : 0;
}

int Enemy::maxMp(const GameData &data) const
{
    const EnemyEntry *entry = data.enemies.find(id);
    return entry != nullptr ? rated(entry->mp, traits(data), "mpRate") : 0;
}

int Enemy::attack(const GameData &data) const
{
    const EnemyEntry *entry = data.enemies.find(id);
    return entry != nullptr ? rated(entry->attack, traits(data), "attackRate") : 0;
}

int Enemy::defense(const GameData &data) const
{
    const EnemyEntry *entry = data.enemies.find(id);
    return entry != nullptr ? rated(entry->defense, traits(data), "defenseRate") : 0;
}

int Enemy::agility(const GameData &data) const
{
    return rated(kAgility, traits(data), "agilityRate");
}

void Enemy::changeHp(int amount, const GameData &data, bool mayKnockOut)
{
    const int least = mayKnockOut || hp <= 0 ? 0 : 1;
    hp = qMax(least, within(qint64(hp) + amount, maxHp(data)));
    if (hp == 0) {
        states = {{Actor::kKnockedOut, 0}};
    } else {
        states.remove(Actor::kKnockedOut);
    }
}

void Enemy::changeMp(int amount, const GameData &data)
{
    mp = within(qint64(mp) + amount, maxMp(data));
}

void Enemy::addState(int state, const GameData &data, int turns)
{
    if (data.states.find(state) == nullptr || Actor::has(traits(data), "resistState", state)) {
        return;
    }
    if (state == Actor::kKnockedOut) {
        changeHp(-hp, data);
    } else if (!isKnockedOut()) {
        states.insert(state, turns);
    }
    hp = qMin(hp, maxHp(data));
    mp = qMin(mp, maxMp(data));
}

void Enemy::removeState(int state, const GameData &data)
{
    if (states.remove(state) > 0 && state == Actor::kKnockedOut) {
        hp = 1;
    }
    hp = qMin(hp, maxHp(data));
    mp = qMin(mp, maxMp(data));
}

void Enemy::recoverAll(const GameData &data)
{
    states.clear();
    hp = maxHp(data);
    mp = maxMp(data);
}

} // namespace player
