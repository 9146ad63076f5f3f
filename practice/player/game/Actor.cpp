#include "player/game/Actor.h"

#include "player/game/GameData.h"
#include "player/game/JsonRead.h"

namespace player {

Actor Actor::begin(const ActorEntry &entry, const GameData &data)
{
    Actor actor;
    actor.id = entry.id;
    actor.name = entry.name;
    actor.image = entry.image;
    actor.classId = entry.classId;
    actor.maxLevel = entry.maxLevel;
    actor.level = entry.initialLevel;
    actor.exp = expOfLevel(actor.level);
    actor.weapon = data.weapons.find(entry.weapon) != nullptr ? entry.weapon : 0;
    actor.armor = data.armors.find(entry.armor) != nullptr ? entry.armor : 0;
    actor.learnOfLevels(1, actor.level, data);
    actor.recoverAll(data);
    return actor;
}

NamedNumbers Actor::traits(const GameData &data) const
{
    NamedNumbers traits;
    if (const ClassEntry *entry = data.classes.find(classId)) {
        traits += entry->traits;
    }
    if (const GearEntry *entry = data.weapons.find(weapon)) {
        traits += entry->traits;
    }
    if (const GearEntry *entry = data.armors.find(armor)) {
        traits += entry->traits;
    }
    for (auto state = states.begin(); state != states.end(); ++state) {
        if (const StateEntry *entry = data.states.find(state.key())) {
            traits += entry->traits;
        }
    }
    return traits;
}

int Actor::rate(const NamedNumbers &traits, const char *name)
{
    qint64 rate = 100;
    for (const NamedNumber &trait : traits) {
        if (trait.name == QLatin1String(name)) {
            rate = qBound(qint64(0), rate * qMax(0, trait.value) / 100, qint64(99999));
        }
    }
    return int(rate);
}

int Actor::sum(const NamedNumbers &traits, const char *name)
{
    qint64 sum = 0;
    for (const NamedNumber &trait : traits) {
        if (trait.name == QLatin1String(name)) {
            sum += trait.value;
        }
    }
    return int(qBound(qint64(-999999), sum, qint64(999999)));
}

bool Actor::has(const NamedNumbers &traits, const char *name, int value)
{
    for (const NamedNumber &trait : traits) {
        if (trait.name == QLatin1String(name) && trait.value == value) {
            return true;
        }
    }
    return false;
}

namespace {

constexpr int kMostPoints = 99999;

int rated(qint64 value, const NamedNumbers &traits, const char *name, int least)
{
    return int(qBound(qint64(least), value * Actor::rate(traits, name) / 100, qint64(kMostPoints)));
}

} // namespace

int Actor::maxHp(const GameData &data) const
{
    const ClassEntry *entry = data.classes.find(classId);
    return rated(entry != nullptr ? entry->hp.at(level) : 1, traits(data), "hpRate", 1);
}

int Actor::maxMp(const GameData &data) const
{
    const ClassEntry *entry = data.classes.find(classId);
    return rated(entry != nullptr ? entry->mp.at(level) : 0, traits(data), "mpRate", 0);
}

int Actor::attack(const GameData &data) const
{
    const GearEntry *held = data.weapons.find(weapon);
    const GearEntry *worn = data.armors.find(armor);
    const qint64 gear = qint64(held != nullptr ? held->attack : 0) + (worn != nullptr ? worn->attack : 0);
    return rated(level + gear, traits(data), "attackRate", 0);
}

int Actor::defense(const GameData &data) const
{
    const GearEntry *held = data.weapons.find(weapon);
    const GearEntry *worn = data.armors.find(armor);
    const qint64 gear = qint64(held != nullptr ? held->defense : 0) + (worn != nullptr ? worn->defense : 0);
    return rated(level + gear, traits(data), "defenseRate", 0);
}

int Actor::agility(const GameData &data) const
{
    return rated(10 + level, traits(data), "agilityRate", 0);
}

bool Actor::knows(int skill, const GameData &data) const
{
    return skills.contains(skill) || has(traits(data), "addSkill", skill);
}

QVector<int> Actor::usableSkills(const GameData &data) const
{
    const NamedNumbers all = traits(data);
    QVector<int> usable = skills;
    for (const NamedNumber &trait : all) {
        if (trait.name == QLatin1String("addSkill") && !usable.contains(trait.value)) {
            usable.append(trait.value);
        }
    }
    for (const NamedNumber &trait : all) {
        if (trait.name == QLatin1String("sealSkill")) {
            usable.removeAll(trait.value);
        }
    }
    return usable;
}

void Actor::changeHp(int amount, const GameData &data, bool mayKnockOut)
{
    const int least = mayKnockOut || hp <= 0 ? 0 : 1;
    hp = int(qBound(qint64(least), qint64(hp) + amount, qint64(maxHp(data))));
    if (hp <= 0) {
        states.clear();
        states.insert(kKnockedOut, 0);
    } else {
        states.remove(kKnockedOut);
    }
}

void Actor::changeMp(int amount, const GameData &data)
{
    mp = int(qBound(qint64(0), qint64(mp) + amount, qint64(maxMp(data))));
}

void Actor::addState(int state, const GameData &data, int turns)
{
    if (has(traits(data), "resistState", state)) {
        return;
    }
    if (state == kKnockedOut) {
        changeHp(-hp, data);
    } else if (!isKnockedOut() && data.states.find(state) != nullptr) {
        states.insert(state, turns);
        fitPoints(data);
    }
}

void Actor::removeState(int state, const GameData &data)
{
    if (state == kKnockedOut && isKnockedOut()) {
        changeHp(1, data);
    } else {
        states.remove(state);
        fitPoints(data);
    }
}

void Actor::recoverAll(const GameData &data)
{
    states.clear();
    hp = maxHp(data);
    mp = maxMp(data);
}

void Actor::learn(int skill)
{
    if (!skills.contains(skill)) {
        skills.append(skill);
    }
}

int Actor::expOfLevel(int level)
{
    return 3 * level * (level - 1);
}

void Actor::changeExp(qint64 amount, const GameData &data)
{
    exp = int(qBound(qint64(0), exp + amount, qint64(expOfLevel(maxLevel))));
    const int before = level;
    int reached = 1;
    while (reached < maxLevel && exp >= expOfLevel(reached + 1)) {
        ++reached;
    }
    level = reached;
    learnOfLevels(before + 1, level, data);
    fitPoints(data);
}

void Actor::changeLevel(int levels, const GameData &data)
{
    const int target = int(qBound(qint64(1), qint64(level) + levels, qint64(maxLevel)));
    if (target != level) {
        changeExp(expOfLevel(target) - exp, data);
    }
}

void Actor::learnOfLevels(int first, int last, const GameData &data)
{
    if (const ClassEntry *entry = data.classes.find(classId)) {
        for (const Learning &learning : entry->learnings) {
            if (learning.level >= first && learning.level <= last &&
                data.skills.find(learning.skill) != nullptr) {
                learn(learning.skill);
            }
        }
    }
}

void Actor::fitPoints(const GameData &data)
{
    hp = qMin(hp, maxHp(data));
    mp = qMin(mp, maxMp(data));
}

} // namespace player
