#include "player/game/GameData.h"
#include "player/game/Numbers.h"
#include "player/script/Interpreter.h"
#include "player/script/commands/AllCommands.h"
#include "player/script/commands/Operands.h"

#include <QCoreApplication>

namespace player {

namespace {

constexpr int kChoices = 102;
constexpr int kNumberInput = 103;
constexpr int kItemInput = 104;
constexpr int kComment = 108;
constexpr int kCommentLine = 408;
constexpr int kMessageLine = 401;
constexpr int kScrollLine = 405;
constexpr int kWhenCancelled = -2;
constexpr int kMostDigits = 8;

/// Whether the command asks the player something as soon as it is done.
bool asks(const Command &command)
{
    const int variable = command.number(0);
    return (command.code == kChoices && !command.parameters.at(0).toArray().isEmpty()) ||
           ((command.code == kNumberInput || command.code == kItemInput) && variable >= 1 &&
            variable <= kLargestNumber);
}

void message(Interpreter &run, const Command &command)
{
    if (run.waitsForTurn()) {
        return;
    }
    if (command.number(1) != 0 && !command.text(0).isEmpty()) {
        run.tell(QCoreApplication::translate("TestPlay",
                                             "The face “%1” is one picture: its number %2 makes no "
                                             "difference.")
                     .arg(command.text(0), QString::number(command.number(1))));
    }
    Message message{command.text(0), command.number(2), command.number(3), command.text(4), {}, false};
    message.lines = run.takeLines(kMessageLine);
    message.asksNext = asks(run.following());
    run.stage().say(message);
    run.wait(Interpreter::Wait::kTalk);
}

void takeChoice(Interpreter &run, const Command &command)
{
    const int answer = run.stage().answer();
    run.setBranch(command.indent, answer != kNothingChosen ? answer : command.number(1));
}

void choices(Interpreter &run, const Command &command)
{
    if (run.waitsForTurn()) {
        return;
    }
    Choices choices;
    const QJsonArray texts = command.parameters.at(0).toArray();
    for (const QJsonValue &text : texts) {
        choices.texts.append(text.toString());
    }
    choices.whenCancelled = command.parameters.at(1).toInt(-1);
    choices.first = command.number(2);
    choices.place = command.parameters.at(3).toInt(2);
    choices.background = command.number(4);
    if (choices.texts.isEmpty()) {
        run.setBranch(command.indent, kWhenCancelled);
        return;
    }
    run.stage().ask(choices);
    run.wait(Interpreter::Wait::kTalk, &takeChoice);
}

void whenChosen(Interpreter &run, const Command &command)
{
    if (run.branch(command.indent) != command.number(0)) {
        run.skipBlock();
    }
}

void whenCancelled(Interpreter &run, const Command &command)
{
    if (run.branch(command.indent) != kWhenCancelled) {
        run.skipBlock();
    }
}

void takeNumber(Interpreter &run, const Command &command)
{
    run.state().setVariable(command.number(0), run.stage().answer());
}

void numberInput(Interpreter &run, const Command &command)
{
    if (!Operands::isNumber(run, command.number(0)) || run.waitsForTurn()) {
        return;
    }
    run.stage().askNumber(
        {qBound(1, command.number(1), kMostDigits), run.state().variable(command.number(0))});
    run.wait(Interpreter::Wait::kTalk, &takeNumber);
}

void takeItem(Interpreter &run, const Command &command)
{
    // Nothing that is chosen is number 0.
    run.state().setVariable(command.number(0), qMax(0, run.stage().answer()));
}

void itemInput(Interpreter &run, const Command &command)
{
    if (!Operands::isNumber(run, command.number(0)) || run.waitsForTurn()) {
        return;
    }
    run.stage().askItem({command.number(1) == 1});
    run.wait(Interpreter::Wait::kTalk, &takeItem);
}

void scrollingText(Interpreter &run, const Command &command)
{
    if (run.waitsForTurn()) {
        return;
    }
    const QStringList lines = run.takeLines(kScrollLine);
    run.stage().scrollText({lines, qBound(1, command.number(0), 8), command.flag(1)});
    run.wait(Interpreter::Wait::kTalk);
}

} // namespace

void addMessageCommands(CommandTable *table)
{
    table->add(101, &message);
    table->add(kChoices, &choices);
    table->add(402, &whenChosen);
    table->add(403, &whenCancelled);
    table->addSilent(404);
    table->add(kNumberInput, &numberInput);
    table->add(kItemInput, &itemInput);
    table->add(105, &scrollingText);
    table->addSilent(kComment);
    table->addSilent(kCommentLine);
    // Lines without a message before them.
    table->addSilent(kMessageLine);
    table->addSilent(kScrollLine);
}

} // namespace player
