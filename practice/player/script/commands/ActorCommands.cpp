#include "player/game/GameData.h"
#include "player/script/Interpreter.h"
#include "player/script/commands/AllCommands.h"
#include "player/script/commands/Operands.h"

#include <QCoreApplication>

namespace player {

namespace {

using Operands::actors;

/// The change that the parameters from 2 on mean.
int amount(Interpreter &run, const Command &command)
{
    return Operands::change(run, command.number(2), command.number(3), command.number(4));
}

QVector<Actor *> whom(Interpreter &run, const Command &command)
{
    return actors(run, command.number(0), command.number(1));
}

void changeHp(Interpreter &run, const Command &command)
{
    const int by = amount(run, command);
    const QVector<Actor *> all = whom(run, command);
    for (Actor *const actor : all) {
        // Nothing but a recovery brings back those who are knocked out.
        if (!actor->isKnockedOut()) {
            actor->changeHp(by, run.data(), command.flag(5));
        }
    }
    if (run.state().isDefeated(run.data()) && run.stage().battlefield() == nullptr) {
        run.stage().gameOver();
    }
}

void changeMp(Interpreter &run, const Command &command)
{
    const int by = amount(run, command);
    const QVector<Actor *> all = whom(run, command);
    for (Actor *const actor : all) {
        actor->changeMp(by, run.data());
    }
}

void changeState(Interpreter &run, const Command &command)
{
    const int id = command.number(3);
    const StateEntry *const state = run.data().states.find(id);
    if (state == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no state %1.").arg(id));
        return;
    }
    const QVector<Actor *> all = whom(run, command);
    for (Actor *const actor : all) {
        if (command.number(2) == 0) {
            const int turns = state->autoRemovalTiming == 2
                                  ? run.state().random.between(state->minTurns, state->maxTurns)
                                  : 0;
            actor->addState(id, run.data(), turns);
        } else {
            actor->removeState(id, run.data());
        }
    }
}

void recoverAll(Interpreter &run, const Command &command)
{
    const QVector<Actor *> all = whom(run, command);
    for (Actor *const actor : all) {
        actor->recoverAll(run.data());
    }
}

/// Says who reached which level, where the command wants that.
void sayLevels(Interpreter &run, const QVector<Actor *> &all, const QVector<int> &before)
{
    QStringList lines;
    for (int i = 0; i < all.size(); ++i) {
        if (all.at(i)->level > before.at(i)) {
            lines.append(QCoreApplication::translate("TestPlay", "%1 is now at level %2!")
                             .arg(all.at(i)->name)
                             .arg(all.at(i)->level));
        }
    }
    if (!lines.isEmpty()) {
        Message message;
        message.lines = lines;
        run.stage().say(message);
        run.wait(Interpreter::Wait::kTalk);
    }
}

void grow(Interpreter &run, const Command &command, const std::function<void(Actor *, int)> &change)
{
    if (command.flag(5) && run.waitsForTurn()) {
        return;
    }
    const int by = amount(run, command);
    const QVector<Actor *> all = whom(run, command);
    QVector<int> before;
    for (Actor *const actor : all) {
        before.append(actor->level);
        change(actor, by);
    }
    if (command.flag(5)) {
        sayLevels(run, all, before);
    }
}

void changeExp(Interpreter &run, const Command &command)
{
    grow(run, command, [&run](Actor *actor, int by) { actor->changeExp(by, run.data()); });
}

void changeLevel(Interpreter &run, const Command &command)
{
    grow(run, command, [&run](Actor *actor, int by) { actor->changeLevel(by, run.data()); });
}

void changeSkills(Interpreter &run, const Command &command)
{
    const int skill = command.number(3);
    if (run.data().skills.find(skill) == nullptr) {
        run.tell(QCoreApplication::translate("TestPlay", "There is no skill %1.").arg(skill));
        return;
    }
    const QVector<Actor *> all = whom(run, command);
    for (Actor *const actor : all) {
        if (command.number(2) == 0) {
            actor->learn(skill);
        } else {
            actor->forget(skill);
        }
    }
}

void changeEquipment(Interpreter &run, const Command &command)
{
    const bool isWeapon = command.number(1) == 0;
    const int id = command.number(2);
    const Entries<GearEntry> &entries = isWeapon ? run.data().weapons : run.data().armors;
    if (id != 0 && entries.find(id) == nullptr) {
        run.tell(isWeapon ? QCoreApplication::translate("TestPlay", "There is no weapon %1.").arg(id)
                          : QCoreApplication::translate("TestPlay", "There is no armor %1.").arg(id));
        return;
    }
    const QVector<Actor *> all = Operands::oneActor(run, command.number(0));
    for (Actor *const actor : all) {
        if (!run.state().equip(actor, isWeapon ? Goods::kWeapon : Goods::kArmor, id, run.data())) {
            run.tell(QCoreApplication::translate(
                "TestPlay", "The party has nothing of that kind to wear; nothing is changed."));
        }
    }
}

void changeName(Interpreter &run, const Command &command)
{
    const QVector<Actor *> all = Operands::oneActor(run, command.number(0));
    for (Actor *const actor : all) {
        actor->name = command.text(1);
    }
}

void nameInput(Interpreter &run, const Command &command)
{
    if (run.waitsForTurn()) {
        return;
    }
    const QVector<Actor *> all = Operands::oneActor(run, command.number(0));
    if (all.isEmpty()) {
        return;
    }
    if (run.stage().openNameInput(all.constFirst()->id, qBound(1, command.number(1), 16))) {
        run.wait(Interpreter::Wait::kScene);
    } else {
        run.tell(QCoreApplication::translate("TestPlay", "A name cannot be put in during a battle."));
    }
}

} // namespace

void addActorCommands(CommandTable *table)
{
    table->add(311, &changeHp);
    table->add(312, &changeMp);
    table->add(313, &changeState);
    table->add(314, &recoverAll);
    table->add(315, &changeExp);
    table->add(316, &changeLevel);
    table->add(317, &changeSkills);
    table->add(318, &changeEquipment);
    table->add(319, &changeName);
    table->add(320, &nameInput);
}

} // namespace player
