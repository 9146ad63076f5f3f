#include "player/script/Interpreter.h"

#include "player/game/GameData.h"
#include "player/script/commands/AllCommands.h"

#include <QCoreApplication>

#include <utility>

namespace player {

namespace {

constexpr int kLoop = 112;
constexpr int kEndOfLoop = 413;
constexpr int kLabel = 115;

} // namespace

Interpreter::Interpreter(const GameData *data, GameState *state, Stage *stage, Tell tell)
    : m_data(data)
    , m_state(state)
    , m_stage(stage)
    , m_tell(std::move(tell))
{
}

void Interpreter::start(const CommandList &list, const ListPlace &place)
{
    m_levels = {{list, place, 0, {}}};
    m_wait = Wait::kNothing;
    m_then = nullptr;
    m_saidEndless = false;
    m_unwaited = 0;
}

bool Interpreter::ownsStage() const
{
    return isRunning() && (m_wait == Wait::kTalk || m_wait == Wait::kTransfer || m_wait == Wait::kScene);
}

int Interpreter::ownEvent() const
{
    const bool isHere = isRunning() && m_levels.constFirst().place.map == m_state->map;
    return isHere && m_state->map != 0 ? m_levels.constFirst().place.event : 0;
}

void Interpreter::tick(int budget)
{
    for (int done = 0; isRunning(); ++done) {
        if (isWaiting()) {
            m_unwaited = 0;
            return;
        }
        finishWait();
        if (m_wait != Wait::kNothing || !isRunning()) {
            continue;
        }
        if (done >= budget) {
            if (m_unwaited < kBudget || std::exchange(m_saidEndless, true)) {
                return;
            }
            tell(QCoreApplication::translate("TestPlay",
                                             "%1 commands were done without a wait: is this a loop without "
                                             "an end? It goes on, slowly.")
                     .arg(kBudget));
            return;
        }
        step();
        m_unwaited = qMin(m_unwaited + 1, kBudget);
    }
}

void Interpreter::step()
{
    Level &level = m_levels.last();
    if (level.next >= level.list.size()) {
        m_levels.removeLast();
        return;
    }
    m_row = level.next;
    m_current = level.list.at(level.next++);
    const CommandTable &table = allCommands();
    if (const Handler handler = table.handler(m_current.code)) {
        const Command command = m_current;
        handler(*this, command);
    } else if (!table.isSilent(m_current.code)) {
        tell(QCoreApplication::translate("TestPlay", "There is no command %1; it is passed by.")
                 .arg(m_current.code));
    }
}

bool Interpreter::isWaiting()
{
    const Character *who = nullptr;
    switch (m_wait) {
    case Wait::kNothing:
        return false;
    case Wait::kTicks:
        return --m_waitTicks >= 0;
    case Wait::kTurn:
        return m_stage->isTalking() || m_stage->isAway() || m_stage->isTransferring();
    case Wait::kTalk:
        return m_stage->isTalking();
    case Wait::kTransfer:
        return m_stage->isTransferring();
    case Wait::kScroll:
        return m_stage->isScrolling();
    case Wait::kScene:
        return m_stage->isAway();
    case Wait::kRoute:
        who = m_stage->character(m_waitCharacter);
        return who != nullptr && (who->hasRoute || who->isMoving());
    case Wait::kBalloon:
        who = m_stage->character(m_waitCharacter);
        return who != nullptr && who->balloonTicks > 0;
    case Wait::kAnimation:
        who = m_stage->character(m_waitCharacter);
        return who != nullptr && who->animationTicks > 0;
    }
    return false;
}

void Interpreter::finishWait()
{
    m_wait = Wait::kNothing;
    if (const Handler then = std::exchange(m_then, nullptr)) {
        const Command command = m_waiting;
        then(*this, command);
    }
}

void Interpreter::waitTicks(int ticks)
{
    if (ticks > 0) {
        wait(Wait::kTicks);
        m_waitTicks = ticks;
    }
}

void Interpreter::wait(Wait wait, Handler then)
{
    m_wait = wait;
    m_then = then;
    m_waiting = m_current;
}

void Interpreter::waitFor(Wait wait, int character)
{
    this->wait(wait);
    m_waitCharacter = character;
}

bool Interpreter::waitsForTurn()
{
    if (!m_stage->isTalking() && !m_stage->isAway() && !m_stage->isTransferring()) {
        return false;
    }
    wait(Wait::kTurn);
    m_levels.last().next = m_row;
    return true;
}

Problem Interpreter::place() const
{
    Problem problem;
    if (isRunning()) {
        const ListPlace &at = m_levels.constLast().place;
        problem.file = at.file;
        problem.map = at.map;
        problem.event = at.event;
        problem.page = at.page;
        problem.line = m_row + 1;
    }
    return problem;
}

void Interpreter::tell(const QString &text)
{
    Problem problem = place();
    problem.text = text;
    m_tell(problem);
}

Character *Interpreter::character(int id)
{
    const int wanted = id == 0 ? ownEvent() : id;
    Character *found = wanted == 0 ? nullptr : m_stage->character(wanted);
    if (found == nullptr) {
        tell(id == 0 ? QCoreApplication::translate("TestPlay", "This event is not on the map.")
                     : QCoreApplication::translate("TestPlay", "There is no event %1 on the map.").arg(id));
    }
    return found;
}

Command Interpreter::following() const
{
    const Level &level = m_levels.constLast();
    return level.next < level.list.size() ? level.list.at(level.next) : Command{-1, 0, {}};
}

QVector<Command> Interpreter::takeCommands(int code)
{
    QVector<Command> commands;
    while (following().code == code) {
        commands.append(following());
        ++m_levels.last().next;
    }
    return commands;
}

QStringList Interpreter::takeLines(int code)
{
    QStringList lines;
    const QVector<Command> commands = takeCommands(code);
    for (const Command &command : commands) {
        lines.append(command.text(0));
    }
    return lines;
}

void Interpreter::setBranch(int indent, int branch)
{
    m_levels.last().branches.insert(indent, branch);
}

int Interpreter::branch(int indent) const
{
    return m_levels.constLast().branches.value(indent, kNoBranch);
}

void Interpreter::skipBlock()
{
    Level &level = m_levels.last();
    while (level.next < level.list.size() && level.list.at(level.next).indent > m_current.indent) {
        ++level.next;
    }
}

void Interpreter::goBackToLoop(const Command &end)
{
    Level &level = m_levels.last();
    for (int row = m_row - 1; row >= 0; --row) {
        if (level.list.at(row).code == kLoop && level.list.at(row).indent == end.indent) {
            level.next = row + 1;
            return;
        }
    }
    tell(QCoreApplication::translate("TestPlay", "A loop ends here that has not begun."));
}

void Interpreter::breakLoop(const Command &command)
{
    Level &level = m_levels.last();
    int around = command.indent;
    for (int row = m_row - 1; row >= 0; --row) {
        const Command &before = level.list.at(row);
        if (before.indent >= around) {
            continue;
        }
        around = before.indent;
        if (before.code != kLoop) {
            continue;
        }
        for (int end = m_row + 1; end < level.list.size(); ++end) {
            if (level.list.at(end).code == kEndOfLoop && level.list.at(end).indent == around) {
                level.next = end + 1;
                return;
            }
        }
        level.next = int(level.list.size());
        return;
    }
    tell(QCoreApplication::translate("TestPlay", "There is no loop to be left here."));
}

void Interpreter::jumpTo(const QString &label)
{
    Level &level = m_levels.last();
    for (int row = 0; row < level.list.size(); ++row) {
        if (level.list.at(row).code == kLabel && level.list.at(row).text(0) == label) {
            level.next = row + 1;
            return;
        }
    }
    tell(QCoreApplication::translate("TestPlay", "There is no label “%1” in this list.").arg(label));
}

void Interpreter::call(const CommandList &list, const ListPlace &place)
{
    if (m_levels.size() >= kDeepest) {
        tell(QCoreApplication::translate("TestPlay",
                                         "%1 common events call one another: does one call itself? This "
                                         "call is passed by.")
                 .arg(kDeepest));
        return;
    }
    m_levels.append({list, place, 0, {}});
}

void Interpreter::leave()
{
    m_levels.removeLast();
}

} // namespace player
