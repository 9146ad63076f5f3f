#include "player/run/Steps.h"
#include "player/scene/MapScene.h"

namespace player {

namespace {

Seen setEncounters(Hand *hand, const QStringList &values)
{
    hand->game().setEncounters(values.at(0) != QLatin1String("off"));
    return {true, {}};
}

Seen setSeed(Hand *hand, const QStringList &values)
{
    hand->game().state().random = Random(values.at(0).toULongLong());
    return {true, {}};
}

Seen setSwitch(Hand *hand, const QStringList &values)
{
    hand->game().state().setSwitch(values.at(0).toInt(), values.at(1) == QLatin1String("on"));
    return {true, {}};
}

Seen setVariable(Hand *hand, const QStringList &values)
{
    hand->game().state().setVariable(values.at(0).toInt(), values.at(1).toInt());
    return {true, {}};
}

Seen giveGold(Hand *hand, const QStringList &values)
{
    hand->game().state().addGold(values.at(0).toInt());
    return {true, {}};
}

QString nameOf(Goods kind)
{
    return kind == Goods::kItem     ? QStringLiteral("item")
           : kind == Goods::kWeapon ? QStringLiteral("weapon")
                                    : QStringLiteral("armor");
}

bool isInDatabase(const GameData &data, Goods kind, int entry)
{
    return kind == Goods::kItem
               ? data.items.find(entry) != nullptr
               : (kind == Goods::kWeapon ? data.weapons : data.armors).find(entry) != nullptr;
}

template<Goods kind>
Seen give(Hand *hand, const QStringList &values)
{
    const int entry = values.at(0).toInt();
    if (!isInDatabase(hand->game().data(), kind, entry)) {
        return {false, QStringLiteral("the database has no %1 %2").arg(nameOf(kind)).arg(entry)};
    }
    hand->game().state().addGoods(kind, entry, 1);
    return {true, {}};
}

/// From the bag.
template<Goods kind>
Seen equip(Hand *hand, const QStringList &values)
{
    const int number = values.at(0).toInt();
    const int entry = values.at(1).toInt();
    Actor *const actor = hand->game().state().actor(number, hand->game().data());
    if (actor == nullptr) {
        return {false, QStringLiteral("the database has no actor %1").arg(number)};
    }
    const bool isDone = hand->game().state().equip(actor, kind, entry, hand->game().data());
    return {isDone, QStringLiteral("the bag has no %1 %2").arg(nameOf(kind)).arg(entry)};
}

Seen toLevel(Hand *hand, const QStringList &values)
{
    const int number = values.at(0).toInt();
    Actor *const actor = hand->game().state().actor(number, hand->game().data());
    if (actor == nullptr) {
        return {false, QStringLiteral("the database has no actor %1").arg(number)};
    }
    actor->changeLevel(values.at(1).toInt() - actor->level, hand->game().data());
    return {actor->level == values.at(1).toInt(), QStringLiteral("level %1").arg(actor->level)};
}

Seen joinParty(Hand *hand, const QStringList &values)
{
    const int actor = values.at(0).toInt();
    hand->game().state().join(actor, hand->game().data());
    return {hand->state().party.contains(actor), QStringLiteral("the database has no actor %1").arg(actor)};
}

Seen place(Hand *hand, const QStringList &values)
{
    const int map = values.at(0).toInt();
    const QPoint cell(values.at(1).toInt(), values.at(2).toInt());
    const MapData *const found = hand->game().data().maps.find(map);
    if (found == nullptr || !found->contains(cell)) {
        return {false, QStringLiteral("there is no such place")};
    }
    GameState state = hand->state();
    state.map = map;
    state.hero.cell = cell;
    state.hero.at = cell;
    hand->game().beginSaved(state);
    hand->tick();
    return {true, hand->whereabouts()};
}

/// As one by chance.
Seen beginBattle(Hand *hand, const QStringList &values)
{
    const int troop = values.at(0).toInt();
    if (hand->game().data().troops.find(troop) == nullptr) {
        return {false, QStringLiteral("the database has no troop %1").arg(troop)};
    }
    if (!hand->isFree()) {
        return {false, QStringLiteral("the hero is not free; ") + hand->whereabouts()};
    }
    hand->map()->fight({troop, true, false});
    hand->tick();
    return {hand->isBattle(), hand->whereabouts()};
}

} // namespace

void addChanges(WordTable *table)
{
    table->add("encounters *", &setEncounters);
    table->add("seed #", &setSeed);
    table->add("set switch # *", &setSwitch);
    table->add("set variable # = #", &setVariable);
    table->add("give gold #", &giveGold);
    table->add("give item #", &give<Goods::kItem>);
    table->add("give weapon #", &give<Goods::kWeapon>);
    table->add("give armor #", &give<Goods::kArmor>);
    table->add("equip # weapon #", &equip<Goods::kWeapon>);
    table->add("equip # armor #", &equip<Goods::kArmor>);
    table->add("join #", &joinParty);
    table->add("level # #", &toLevel);
    table->add("place # # #", &place);
    table->add("battle #", &beginBattle);
}

} // namespace player
