#include "player/game/GameState.h"

#include "player/game/GameData.h"

#include <algorithm>

namespace player {

namespace {

QMap<int, int> *bagOf(GameState *state, Goods kind)
{
    switch (kind) {
    case Goods::kWeapon:
        return &state->weapons;
    case Goods::kArmor:
        return &state->armors;
    case Goods::kItem:
        break;
    }
    return &state->items;
}

QString selfSwitchKey(int map, int event, const QString &letter)
{
    return QStringLiteral("%1 %2 %3").arg(map).arg(event).arg(letter);
}

} // namespace

void GameState::setSwitch(int switchId, bool isOn)
{
    if (isOn) {
        switches.insert(switchId);
    } else {
        switches.remove(switchId);
    }
}

void GameState::setVariable(int id, qint64 value)
{
    variables.insert(id, int(qBound(qint64(-kLargestVariable), value, qint64(kLargestVariable))));
}

bool GameState::isSelfSwitchOn(int mapId, int event, const QString &letter) const
{
    return selfSwitches.contains(selfSwitchKey(mapId, event, letter));
}

void GameState::setSelfSwitch(int mapId, int event, const QString &letter, bool isOn)
{
    const QString key = selfSwitchKey(mapId, event, letter);
    if (isOn) {
        selfSwitches.insert(key);
    } else {
        selfSwitches.remove(key);
    }
}

void GameState::addGold(qint64 amount)
{
    gold = int(qBound(qint64(0), gold + amount, qint64(kMostGold)));
}

int GameState::count(Goods kind, int id) const
{
    switch (kind) {
    case Goods::kWeapon:
        return weapons.value(id);
    case Goods::kArmor:
        return armors.value(id);
    case Goods::kItem:
        break;
    }
    return items.value(id);
}

void GameState::addGoods(Goods kind, int id, int number)
{
    QMap<int, int> *bag = bagOf(this, kind);
    const int count = int(qBound(qint64(0), qint64(bag->value(id)) + number, qint64(kMostGoods)));
    if (count == 0 || id == 0) {
        bag->remove(id);
    } else {
        bag->insert(id, count);
    }
}

bool GameState::equip(Actor *actor, Goods kind, int entry, const GameData &data)
{
    int *const worn = kind == Goods::kWeapon ? &actor->weapon : &actor->armor;
    if (entry == *worn) {
        return true;
    }
    if (entry != 0 && count(kind, entry) == 0) {
        return false;
    }
    addGoods(kind, entry, -1);
    addGoods(kind, *worn, 1);
    *worn = entry;
    actor->fitPoints(data);
    return true;
}

Actor *GameState::actor(int id, const GameData &data)
{
    auto found = actors.find(id);
    if (found == actors.end()) {
        const ActorEntry *entry = data.actors.find(id);
        if (entry == nullptr) {
            return nullptr;
        }
        found = actors.insert(id, Actor::begin(*entry, data));
    }
    return &*found;
}

const Actor *GameState::knownActor(int id) const
{
    const auto found = actors.constFind(id);
    return found == actors.constEnd() ? nullptr : &*found;
}

void GameState::join(int actorId, const GameData &data, bool beginsAnew)
{
    if (beginsAnew) {
        actors.remove(actorId);
    }
    if (actor(actorId, data) != nullptr && !party.contains(actorId)) {
        party.append(actorId);
    }
}

bool GameState::isDefeated(const GameData &) const
{
    const QVector<int> who = fighters();
    return !who.isEmpty() && std::all_of(who.begin(), who.end(), [this](int id) {
        const Actor *actor = knownActor(id);
        return actor == nullptr || actor->isKnockedOut();
    });
}

GameState GameState::begin(const GameData &data, quint64 seed)
{
    GameState state;
    state.random = Random(seed);
    for (const int actor : data.system.party) {
        state.join(actor, data);
    }
    state.map = data.system.startMap;
    state.hero.cell = data.system.startCell;
    if (const MapData *map = data.maps.find(state.map); map != nullptr && !map->size.isEmpty()) {
        state.hero.cell = {qBound(0, state.hero.cell.x(), map->size.width() - 1),
                           qBound(0, state.hero.cell.y(), map->size.height() - 1)};
    }
    state.hero.at = state.hero.cell;
    return state;
}

} // namespace player
