#include "player/script/commands/Branches.h"

#include "player/game/GameData.h"
#include "player/script/Battlefield.h"
#include "player/script/commands/Operands.h"

#include <QCoreApplication>

namespace player::Branches {

namespace {

// Places of the parameters.
constexpr int kNumber = 1;
constexpr int kState = 2;
constexpr int kComparison = 3;
constexpr int kFact = 4;
constexpr int kValue = 5;
constexpr int kLetter = 6;

bool variableHolds(Interpreter &run, const Command &command)
{
    if (!Operands::isNumber(run, command.number(kNumber))) {
        return false;
    }
    const int by = command.number(kFact) == 1 ? 1 : 0;
    return Operands::compare(run.state().variable(command.number(kNumber)), command.number(kComparison),
                             Operands::given(run, by, command.number(kValue)));
}

bool selfSwitchHolds(Interpreter &run, const Command &command)
{
    const ListPlace &place = run.owner();
    const bool isOn = run.state().isSelfSwitchOn(place.map, place.event, command.text(kLetter));
    return isOn == (command.number(kState) == 0);
}

bool actorHolds(Interpreter &run, const Command &command)
{
    const int id = command.number(kNumber);
    const int value = command.number(kValue);
    if (command.number(kFact) == 0) {
        return run.state().party.contains(id);
    }
    const Actor *const actor = run.state().actor(id, run.data());
    if (actor == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no actor %1.").arg(id));
        return false;
    }
    switch (command.number(kFact)) {
    case 1:
        return actor->classId == value;
    case 2:
        return actor->knows(value, run.data());
    case 3:
        return actor->weapon == value;
    case 4:
        return actor->armor == value;
    case 5:
        return actor->hasState(value);
    default:
        return false;
    }
}

bool enemyHolds(Interpreter &run, const Command &command)
{
    const Battlefield *const battle = run.stage().battlefield();
    if (battle == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no enemy outside of a battle."));
        return false;
    }
    const int enemy = command.number(kNumber);
    return command.number(kFact) == 5 ? battle->hasState(enemy, command.number(kValue))
                                      : battle->hasAppeared(enemy);
}

bool hasGoods(Interpreter &run, Goods kind, const Command &command)
{
    const int id = command.number(kNumber);
    if (run.state().count(kind, id) > 0) {
        return true;
    }
    if (kind == Goods::kItem || command.number(kFact) != 1) {
        return false;
    }
    const QVector<int> party = run.state().party;
    for (const int member : party) {
        const Actor *const actor = run.state().actor(member, run.data());
        if (actor != nullptr && (kind == Goods::kWeapon ? actor->weapon : actor->armor) == id) {
            return true;
        }
    }
    return false;
}

} // namespace

bool holds(Interpreter &run, const Command &command)
{
    switch (command.number(0)) {
    case 0:
        return Operands::isNumber(run, command.number(kNumber)) &&
               run.state().isOn(command.number(kNumber)) == (command.number(kState) == 0);
    case 1:
        return variableHolds(run, command);
    case 2:
        return selfSwitchHolds(run, command);
    case 3:
        return Operands::compare(run.state().timerSeconds(), command.number(kComparison),
                                 command.number(kValue));
    case 4:
        return actorHolds(run, command);
    case 5:
        return enemyHolds(run, command);
    case 6: {
        const Character *const who = run.character(command.number(kNumber));
        return who != nullptr && who->direction == command.number(kValue);
    }
    case 7:
        return Operands::compare(run.state().gold, command.number(kComparison), command.number(kValue));
    case 8:
        return hasGoods(run, Goods::kItem, command);
    case 9:
        return hasGoods(run, Goods::kWeapon, command);
    case 10:
        return hasGoods(run, Goods::kArmor, command);
    default:
        run.tell(QCoreApplication::translate("TestPlay", "There is no condition %1; it does not hold.")
                     .arg(command.number(0)));
        return false;
    }
}

} // namespace player::Branches
