#include "player/game/GameData.h"
#include "player/script/Interpreter.h"
#include "player/script/commands/AllCommands.h"
#include "player/script/commands/Operands.h"

#include <QCoreApplication>

namespace player {

namespace {

void gold(Interpreter &run, const Command &command)
{
    run.state().addGold(Operands::change(run, command.number(0), command.number(1), command.number(2)));
}

int numberOf(Interpreter &run, const Command &command)
{
    return Operands::change(run, command.number(1), command.number(2), command.number(3));
}

void items(Interpreter &run, const Command &command)
{
    const int id = command.number(0);
    if (run.data().items.find(id) == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no item %1.").arg(id));
        return;
    }
    run.state().addGoods(Goods::kItem, id, numberOf(run, command));
}

/// Takes so many from those who wear them.
void undress(Interpreter &run, Goods kind, int id, int number)
{
    const QVector<int> party = run.state().party;
    for (const int member : party) {
        Actor *const actor = run.state().actor(member, run.data());
        int &worn = kind == Goods::kWeapon ? actor->weapon : actor->armor;
        if (number > 0 && worn == id) {
            worn = 0;
            actor->fitPoints(run.data());
            --number;
        }
    }
}

void changeGear(Interpreter &run, Goods kind, const Command &command)
{
    const int number = numberOf(run, command);
    const int held = run.state().count(kind, command.number(0));
    run.state().addGoods(kind, command.number(0), number);
    if (command.flag(4) && -number > held) {
        undress(run, kind, command.number(0), -number - held);
    }
}

void weapons(Interpreter &run, const Command &command)
{
    if (run.data().weapons.find(command.number(0)) == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no weapon %1.").arg(command.number(0)));
        return;
    }
    changeGear(run, Goods::kWeapon, command);
}

void armors(Interpreter &run, const Command &command)
{
    if (run.data().armors.find(command.number(0)) == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no armor %1.").arg(command.number(0)));
        return;
    }
    changeGear(run, Goods::kArmor, command);
}

void party(Interpreter &run, const Command &command)
{
    const int actor = command.number(0);
    if (run.data().actors.find(actor) == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no actor %1.").arg(actor));
    } else if (command.number(1) == 0) {
        run.state().join(actor, run.data(), command.flag(2));
    } else {
        run.state().leave(actor);
    }
}

} // namespace

void addPartyCommands(CommandTable *table)
{
    table->add(125, &gold);
    table->add(126, &items);
    table->add(127, &weapons);
    table->add(128, &armors);
    table->add(129, &party);
}

} // namespace player
