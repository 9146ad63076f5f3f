#pragma once

#include "player/script/Interpreter.h"
#include "player/script/World.h"

#include <map>
#include <memory>

namespace player {

/// The events that run on a map: one that the game waits for, and any number beside it.
class MapEvents
{
public:
    MapEvents(const GameData *data, World *world, Stage *stage, const Interpreter::Tell &tell);

    /// The map was left: what runs beside the game is over, the event that led away goes on.
    void leaveMap();

    /// An event that the game waits for is on: nothing else begins, and the hero does not walk.
    [[nodiscard]] bool isRunning() const { return m_main.isRunning(); }
    /// Runs the page that holds of an event; the event looks at the hero while it is asked.
    void start(World::Event *event);
    /// Also troops and items that call a common event.
    void startCommon(const CommonEventEntry &event);
    /// All of them, those that have the stage first; then begins what begins by itself.
    void tick();
    /// Something else begins: what has begun by itself again and again has not.
    void forgetAutoruns() { m_autoruns = 0; }

private:
    using Beside = std::map<int, std::unique_ptr<Interpreter>>;

    void beginByThemselves();
    void countAutorun(const ListPlace &place);
    void beginBeside();
    [[nodiscard]] ListPlace placeOf(const World::Event &event) const;
    void release();

    const GameData *m_data;
    World *m_world;
    Stage *m_stage;
    Interpreter::Tell m_tell;
    Interpreter m_main;
    /// Number of the event that the main interpreter runs, 0 for none.
    int m_mainEvent = 0;
    /// By event, and by common event.
    Beside m_parallel;
    std::map<int, int> m_parallelPages;
    Beside m_common;
    ListPlace m_lastAutorun;
    int m_autoruns = 0;
};

} // namespace player
