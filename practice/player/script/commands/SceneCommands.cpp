#include "player/game/GameData.h"
#include "player/script/Interpreter.h"
#include "player/script/commands/AllCommands.h"
#include "player/script/commands/Operands.h"

#include <QCoreApplication>

namespace player {

namespace {

using Wait = Interpreter::Wait;

constexpr int kGoods = 605;
constexpr int kTicksOfBalloon = 60;
constexpr int kTicksOfFrame = 4;

void notHere(Interpreter &run)
{
    run.tell(QCoreApplication::translate("TestPlay", "This cannot be done during a battle."));
}

/// Whether a map has this cell; tells a problem otherwise.
bool isPlace(Interpreter &run, int map, const QPoint &cell)
{
    const MapData *const found = run.data().maps.find(map);
    if (found == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no map %1.").arg(map));
    } else if (!found->contains(cell)) {
        run.tell(QCoreApplication::translate("TestPlay", "Map %1 has no cell %2, %3.")
                     .arg(map)
                     .arg(cell.x())
                     .arg(cell.y()));
    } else {
        return true;
    }
    return false;
}

void transfer(Interpreter &run, const Command &command)
{
    if (run.waitsForTurn()) {
        return;
    }
    const int by = command.number(0);
    const int map = Operands::given(run, by, command.number(1));
    const QPoint cell(Operands::given(run, by, command.number(2)),
                      Operands::given(run, by, command.number(3)));
    if (!isPlace(run, map, cell)) {
        return;
    }
    if (run.stage().transfer({map, cell, qBound(0, command.number(4), 4), command.number(5)})) {
        run.wait(Wait::kTransfer);
    } else {
        notHere(run);
    }
}

void eventLocation(Interpreter &run, const Command &command)
{
    Character *const who = run.character(command.number(0));
    if (who == nullptr) {
        return;
    }
    const int by = command.number(1);
    const QPoint cell(Operands::given(run, by, command.number(2)),
                      Operands::given(run, by, command.number(3)));
    if (!isPlace(run, run.state().map, cell)) {
        return;
    }
    who->cell = cell;
    who->at = cell;
    who->ticksLeft = 0;
    if (command.number(4) >= kDown && command.number(4) <= kUp) {
        who->direction = command.number(4);
    }
}

void scrollMap(Interpreter &run, const Command &command)
{
    const int cells = qBound(0, command.number(1), MapData::kLargest);
    if (!run.stage().scrollMap(command.number(0), cells, qBound(1, command.number(2), 6))) {
        notHere(run);
    } else if (command.flag(3)) {
        run.wait(Wait::kScroll);
    }
}

void movementRoute(Interpreter &run, const Command &command)
{
    Character *const who = run.character(command.number(0));
    if (who == nullptr) {
        return;
    }
    who->route = Route::fromJson(command.parameters.at(1));
    who->routePlace = 0;
    who->hasRoute = !who->route.steps.isEmpty();
    who->routeOf = run.place();
    who->blockedTicks = 0;
    who->pause = 0;
    for (const RouteStep &step : qAsConst(who->route.steps)) {
        if (const QString complaint = step.complaint(); !complaint.isEmpty()) {
            run.tell(complaint);
        }
    }
    if (who->route.waits && who->route.repeats) {
        run.tell(QCoreApplication::translate(
            "TestPlay", "A route that repeats has no end to wait for; the event goes on."));
    } else if (who->route.waits) {
        run.waitFor(Wait::kRoute, who->id);
    }
}

void transparency(Interpreter &run, const Command &command)
{
    if (Character *const who = run.character(command.number(0))) {
        who->isTransparent = command.number(1) == 0;
    }
}

void animation(Interpreter &run, const Command &command)
{
    Character *const who = run.character(command.number(0));
    const AnimationEntry *const entry = run.data().animations.find(command.number(1));
    if (entry == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no animation %1.").arg(command.number(1)));
    } else if (who != nullptr) {
        who->animation = entry->id;
        who->animationTicks = entry->frames * kTicksOfFrame;
        who->animationPassed = 0;
        if (command.flag(2)) {
            run.waitFor(Wait::kAnimation, who->id);
        }
    }
}

void balloon(Interpreter &run, const Command &command)
{
    Character *const who = run.character(command.number(0));
    if (who == nullptr) {
        return;
    }
    if (command.number(1) < 1 || command.number(1) > 10) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no balloon %1.").arg(command.number(1)));
        return;
    }
    who->balloon = command.number(1);
    who->balloonTicks = kTicksOfBalloon;
    if (command.flag(2)) {
        run.waitFor(Wait::kBalloon, who->id);
    }
}

void eraseEvent(Interpreter &run, const Command &)
{
    if (run.character(0) != nullptr) {
        run.stage().erase(run.ownEvent());
    }
}

int usualPrice(const GameData &data, int kind, int id)
{
    if (kind == 0) {
        const ItemEntry *const item = data.items.find(id);
        return item != nullptr ? item->price : -1;
    }
    const GearEntry *const gear = kind == 1 ? data.weapons.find(id) : data.armors.find(id);
    return gear != nullptr ? gear->price : -1;
}

void shop(Interpreter &run, const Command &command)
{
    if (run.waitsForTurn()) {
        return;
    }
    const QVector<Command> further = run.takeCommands(kGoods);
    QVector<ShopGoods> goods;
    const QVector<Command> all = QVector<Command>{command} + further;
    for (const Command &offer : all) {
        const int kind = qBound(0, offer.number(0), 2);
        const int price = usualPrice(run.data(), kind, offer.number(1));
        if (price < 0) {
            run.tell(QCoreApplication::translate("TestPlay", "The shop offers something that is not in the "
                                                             "database: number %1.")
                         .arg(offer.number(1)));
        } else {
            goods.append({kind, offer.number(1), offer.number(2) == 1 ? qMax(0, offer.number(3)) : price});
        }
    }
    if (run.stage().openShop(goods, command.flag(4))) {
        run.wait(Wait::kScene);
    } else {
        notHere(run);
    }
}

/// Another scene, which the event waits for.
template<bool (Stage::*open)()>
void openScene(Interpreter &run, const Command &)
{
    if (run.waitsForTurn()) {
        return;
    }
    if ((run.stage().*open)()) {
        run.wait(Wait::kScene);
    } else {
        notHere(run);
    }
}

} // namespace

void addSceneCommands(CommandTable *table)
{
    table->add(201, &transfer);
    table->add(202, &eventLocation);
    table->add(203, &scrollMap);
    table->add(205, &movementRoute);
    table->add(206, &transparency);
    table->add(207, &animation);
    table->add(208, &balloon);
    table->add(209, &eraseEvent);
    table->add(302, &shop);
    // Goods without a shop before them.
    table->addSilent(kGoods);
    table->add(303, &openScene<&Stage::openMenu>);
    table->add(304, &openScene<&Stage::openSave>);
    table->add(305, &openScene<&Stage::gameOver>);
    table->add(306, &openScene<&Stage::toTitle>);
}

} // namespace player
