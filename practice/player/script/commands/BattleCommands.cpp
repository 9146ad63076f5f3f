#include "player/game/GameData.h"
#include "player/script/Battlefield.h"
#include "player/script/Interpreter.h"
#include "player/script/commands/AllCommands.h"
#include "player/script/commands/Operands.h"

#include <QCoreApplication>

namespace player {

namespace {

void takeOutcome(Interpreter &run, const Command &command)
{
    run.setBranch(command.indent, run.stage().result());
}

void battle(Interpreter &run, const Command &command)
{
    if (run.waitsForTurn()) {
        return;
    }
    int troop = command.number(1);
    if (command.number(0) == 1) {
        troop = run.state().variable(troop);
    } else if (command.number(0) == 2) {
        troop = run.stage().randomTroop();
    }
    run.setBranch(command.indent, int(BattleOutcome::kWon));
    if (run.data().troops.find(troop) == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no troop %1; nobody fights.").arg(troop));
    } else if (run.stage().fight({troop, command.flag(2), command.flag(3)})) {
        run.wait(Interpreter::Wait::kScene, &takeOutcome);
    } else {
        run.tell(QCoreApplication::translate("TestPlay", "A battle cannot begin here."));
    }
}

void whenOutcome(Interpreter &run, const Command &command)
{
    if (run.branch(command.indent) != command.code - 601) {
        run.skipBlock();
    }
}

/// The battle; nullptr, with a problem told, outside of one.
Battlefield *battlefield(Interpreter &run)
{
    Battlefield *const battle = run.stage().battlefield();
    if (battle == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no enemy outside of a battle."));
    }
    return battle;
}

void told(Interpreter &run, bool isDone, int enemy)
{
    if (!isDone) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no enemy %1 in this battle.")
                     .arg(qint64(enemy) + 1));
    }
}

void enemyHp(Interpreter &run, const Command &command)
{
    if (Battlefield *const battle = battlefield(run)) {
        const int by = Operands::change(run, command.number(1), command.number(2), command.number(3));
        told(run, battle->changeHp(command.number(0), by, command.flag(4)), command.number(0));
    }
}

void enemyMp(Interpreter &run, const Command &command)
{
    if (Battlefield *const battle = battlefield(run)) {
        const int by = Operands::change(run, command.number(1), command.number(2), command.number(3));
        told(run, battle->changeMp(command.number(0), by), command.number(0));
    }
}

void enemyState(Interpreter &run, const Command &command)
{
    if (Battlefield *const battle = battlefield(run)) {
        const int state = command.number(2);
        if (run.data().states.find(state) == nullptr) {
            run.tell(QCoreApplication::translate("TestPlay", "There is no state %1.").arg(state));
            return;
        }
        told(run,
             command.number(1) == 0 ? battle->addState(command.number(0), state)
                                    : battle->removeState(command.number(0), state),
             command.number(0));
    }
}

void enemyRecovers(Interpreter &run, const Command &command)
{
    if (Battlefield *const battle = battlefield(run)) {
        told(run, battle->recover(command.number(0)), command.number(0));
    }
}

void enemyAppears(Interpreter &run, const Command &command)
{
    if (Battlefield *const battle = battlefield(run)) {
        told(run, battle->appear(command.number(0)), command.number(0));
    }
}

void forceAction(Interpreter &run, const Command &command)
{
    Battlefield *const battle = battlefield(run);
    if (battle == nullptr) {
        return;
    }
    if (!battle->forceAction(command.number(0) == 1, command.number(1), command.number(2),
                             command.parameters.at(3).toInt(-1))) {
        run.tell(QCoreApplication::translate("TestPlay", "Nobody there can do this now."));
    }
}

void abortBattle(Interpreter &run, const Command &)
{
    if (Battlefield *const battle = battlefield(run)) {
        battle->abort();
    }
}

} // namespace

void addBattleCommands(CommandTable *table)
{
    table->add(301, &battle);
    table->add(601, &whenOutcome);
    table->add(602, &whenOutcome);
    table->add(603, &whenOutcome);
    table->addSilent(604);
    table->add(331, &enemyHp);
    table->add(332, &enemyMp);
    table->add(333, &enemyState);
    table->add(334, &enemyRecovers);
    table->add(335, &enemyAppears);
    table->add(336, &forceAction);
    table->add(337, &abortBattle);
}

} // namespace player
