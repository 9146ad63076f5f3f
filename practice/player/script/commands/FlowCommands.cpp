#include "player/game/GameData.h"
#include "player/script/Interpreter.h"
#include "player/script/commands/AllCommands.h"
#include "player/script/commands/Branches.h"
#include "player/script/commands/Operands.h"

#include <QCoreApplication>

namespace player {

namespace {

constexpr int kThen = 0;
constexpr int kElse = 1;
/// Ten minutes, as for what takes its time on the screen.
constexpr int kLongestWait = 36000;

void conditionalBranch(Interpreter &run, const Command &command)
{
    const bool holds = Branches::holds(run, command);
    run.setBranch(command.indent, holds ? kThen : kElse);
    if (!holds) {
        run.skipBlock();
    }
}

void otherwise(Interpreter &run, const Command &command)
{
    if (run.branch(command.indent) != kElse) {
        run.skipBlock();
    }
}

void repeatAbove(Interpreter &run, const Command &command)
{
    run.goBackToLoop(command);
}

void breakLoop(Interpreter &run, const Command &command)
{
    run.breakLoop(command);
}

void exitEvent(Interpreter &run, const Command &)
{
    run.leave();
}

void jumpToLabel(Interpreter &run, const Command &command)
{
    run.jumpTo(command.text(0));
}

void commonEvent(Interpreter &run, const Command &command)
{
    const CommonEventEntry *const event = run.data().commonEvents.find(command.number(0));
    if (event == nullptr) {
        run.tell(
            QCoreApplication::translate("TestPlay", "There is no common event %1.").arg(command.number(0)));
        return;
    }
    run.call(event->list, {QStringLiteral("data/CommonEvents.json"), 0, event->id, 0});
}

/// Numbers from one to another.
struct Range
{
    int first = 1;
    int last = 0;
};

/// Whichever of the two parameters is the smaller one; empty, with a problem told, when one cannot be.
Range rangeOf(Interpreter &run, const Command &command)
{
    const int one = command.number(0);
    const int other = command.number(1);
    const bool isThere = Operands::isNumber(run, one) && (one == other || Operands::isNumber(run, other));
    return isThere ? Range{qMin(one, other), qMax(one, other)} : Range();
}

void switches(Interpreter &run, const Command &command)
{
    const Range range = rangeOf(run, command);
    for (int id = range.first; id <= range.last; ++id) {
        run.state().setSwitch(id, command.number(2) == 0);
    }
}

/// What one variable becomes; nothing for a division by 0.
bool operate(int operation, qint64 operand, qint64 *value)
{
    switch (operation) {
    case 0:
        *value = operand;
        return true;
    case 1:
        *value += operand;
        return true;
    case 2:
        *value -= operand;
        return true;
    case 3:
        *value *= operand;
        return true;
    case 4:
        if (operand != 0) {
            *value /= operand;
        }
        return operand != 0;
    case 5:
        if (operand != 0) {
            *value %= operand;
        }
        return operand != 0;
    default:
        return true;
    }
}

void variables(Interpreter &run, const Command &command)
{
    const Range range = rangeOf(run, command);
    for (int id = range.first; id <= range.last; ++id) {
        // By chance, each of them gets a number of its own.
        qint64 operand = command.number(4);
        if (command.number(3) == 1) {
            operand = Operands::given(run, 1, command.number(4));
        } else if (command.number(3) == 2) {
            operand = run.state().random.between(command.number(4), command.number(5));
        }
        qint64 value = run.state().variable(id);
        if (!operate(command.number(2), operand, &value)) {
            run.tell(
                QCoreApplication::translate("TestPlay", "Variable %1 is divided by 0; it stays what it is.")
                    .arg(id));
            return;
        }
        run.state().setVariable(id, value);
    }
}

void selfSwitch(Interpreter &run, const Command &command)
{
    const ListPlace place = run.owner();
    if (place.map == 0) {
        run.tell(QCoreApplication::translate("TestPlay", "Only an event on a map has self switches."));
        return;
    }
    run.state().setSelfSwitch(place.map, place.event, command.text(0), command.number(1) == 0);
}

void timer(Interpreter &run, const Command &command)
{
    run.state().isTimerOn = command.number(0) == 0;
    run.state().timerTicks =
        run.state().isTimerOn ? qBound(0, command.number(1), 359999) * GameState::kTicksPerSecond : 0;
}

void pause(Interpreter &run, const Command &command)
{
    const int wanted = command.number(0);
    if (wanted > kLongestWait) {
        run.tell(QCoreApplication::translate("TestPlay", "A wait of %1 frames is too long; it ends after %2.")
                     .arg(wanted)
                     .arg(kLongestWait));
    }
    run.waitTicks(qMin(wanted, kLongestWait));
}

} // namespace

void addFlowCommands(CommandTable *table)
{
    table->add(111, &conditionalBranch);
    table->add(411, &otherwise);
    table->addSilent(412);
    table->addSilent(112);
    table->add(413, &repeatAbove);
    table->add(113, &breakLoop);
    table->add(114, &exitEvent);
    table->addSilent(115);
    table->add(116, &jumpToLabel);
    table->add(117, &commonEvent);
    table->add(121, &switches);
    table->add(122, &variables);
    table->add(123, &selfSwitch);
    table->add(124, &timer);
    table->add(230, &pause);
}

} // namespace player
