#pragma once

#include "player/game/Command.h"
#include "player/game/GameState.h"
#include "player/game/Problem.h"
#include "player/script/CommandTable.h"
#include "player/script/Stage.h"

#include <QHash>
#include <QMap>
#include <QVector>

#include <functional>

namespace player {

struct GameData;

/// Where a list of commands stands in the project.
struct ListPlace
{
    /// Name of the data file.
    QString file;
    /// Number of the map, 0 for none.
    int map = 0;
    /// Number of the event, common event or troop.
    int event = 0;
    /// From 1; 0 for a common event.
    int page = 0;
};

/// Runs the commands of one event, and of the common events that it calls, one after the other. It runs until
/// something has to be waited for; the next tick goes on.
class Interpreter
{
public:
    using Handler = CommandTable::Handler;
    using Tell = std::function<void(const Problem &)>;

    /// Common events that call common events, at most.
    static constexpr int kDeepest = 50;
    /// Commands that one tick does at most. After that many without a wait a problem says so, and the next
    /// tick goes on.
    static constexpr int kBudget = 2000;

    /// All of them have to outlive the interpreter.
    Interpreter(const GameData *data, GameState *state, Stage *stage, Tell tell);

    /// Runs @p list from its beginning in place of what was on.
    void start(const CommandList &list, const ListPlace &place);
    void stop() { m_levels.clear(); }
    [[nodiscard]] bool isRunning() const { return !m_levels.isEmpty(); }
    /// Does @p budget commands at most.
    void tick(int budget = kBudget);
    /// It waits for a talk, a transfer or another scene that it has begun: it is the first to go on.
    [[nodiscard]] bool ownsStage() const;
    /// Number of the event on the map that runs, 0 for none.
    [[nodiscard]] int ownEvent() const;

    // For the handlers of commands.

    enum class Wait {
        kNothing,
        /// For waitTicks().
        kTicks,
        /// Until what somebody else has begun on the stage is over; then the command is done once more.
        kTurn,
        kTalk,
        kTransfer,
        kScroll,
        kScene,
        /// Until the character has walked its route, or shown its balloon or animation.
        kRoute,
        kBalloon,
        kAnimation,
    };

    [[nodiscard]] const GameData &data() const { return *m_data; }
    [[nodiscard]] GameState &state() { return *m_state; }
    [[nodiscard]] Stage &stage() { return *m_stage; }
    /// The event that runs, also while a common event does its part of it.
    [[nodiscard]] const ListPlace &owner() const { return m_levels.constFirst().place; }
    /// -1 the hero, 0 the event itself, else an event of the map; nullptr, with a problem told, for none.
    Character *character(int id);

    void waitTicks(int ticks);
    /// @p then is called with the command when it is over.
    void wait(Wait wait, Handler then = nullptr);
    void waitFor(Wait wait, int character);
    /// True while another event talks or has another scene: the command is to be left at once, and comes
    /// again.
    bool waitsForTurn();
    /// The place of the command, for something to tell about it.
    [[nodiscard]] Problem place() const;
    /// Tells what cannot be done, with the place of the command.
    void tell(const QString &text);

    /// Lines of the commands that follow with this code, which are done with.
    QStringList takeLines(int code);
    /// The following commands with this code, which are done with.
    QVector<Command> takeCommands(int code);
    /// The command that comes next; of code -1 at the end.
    [[nodiscard]] Command following() const;
    static constexpr int kNoBranch = -100;
    /// Which way the branches that belong to a command of this indent go.
    void setBranch(int indent, int branch);
    [[nodiscard]] int branch(int indent) const;
    /// Goes to the next command that is indented no deeper than the current one.
    void skipBlock();
    void goBackToLoop(const Command &end);
    void breakLoop(const Command &command);
    void jumpTo(const QString &label);
    void call(const CommandList &list, const ListPlace &place);
    /// Ends the list that runs; who called it goes on.
    void leave();

private:
    struct Level
    {
        CommandList list;
        ListPlace place;
        int next = 0;
        QMap<int, int> branches;
    };

    [[nodiscard]] bool isWaiting();
    void finishWait();
    void step();

    const GameData *m_data;
    GameState *m_state;
    Stage *m_stage;
    Tell m_tell;
    QVector<Level> m_levels;
    Wait m_wait = Wait::kNothing;
    int m_waitTicks = 0;
    int m_waitCharacter = 0;
    Handler m_then = nullptr;
    Command m_waiting;
    Command m_current;
    /// Row of m_current, from 0.
    int m_row = 0;
    bool m_saidEndless = false;
    /// Commands since it last waited.
    int m_unwaited = 0;
};

} // namespace player
