#pragma once

#include "player/game/GameData.h"
#include "player/game/GameState.h"
#include "player/game/Input.h"
#include "player/game/Problem.h"
#include "player/scene/Frame.h"
#include "player/scene/Scene.h"
#include "player/scene/SceneMaker.h"

#include <memory>
#include <vector>

namespace player {

/// What a game begins with.
enum class StartWith {
    kTitle,
    /// A new game at once.
    kMap,
    /// A battle against settings.troop with the party that the database has for trials.
    kBattleTest,
};

struct GameSettings
{
    StartWith start = StartWith::kTitle;
    int troop = 0;
    quint64 seed = 1;
    /// Name of the project: that of a game which has no title of its own.
    QString name;
    /// Where save games lie; empty when there is no place for them.
    QString saveFolder;
};

/// A running game: a stack of scenes, the state and the tick. The same data, settings and input give the same
/// frames.
class Game
{
public:
    /// newGame() makes one with all scenes.
    Game(std::shared_ptr<const GameData> data, const GameSettings &settings,
         std::unique_ptr<const SceneMaker> scenes);
    ~Game();

    /// A sixtieth of a second.
    void tick(const Input &input = {});
    /// What is seen and heard since the last tick.
    [[nodiscard]] const Frame &frame() const { return m_frame; }
    [[nodiscard]] const GameData &data() const { return *m_data; }
    [[nodiscard]] const GameState &state() const { return m_state; }
    [[nodiscard]] GameState &state() { return m_state; }
    [[nodiscard]] const GameSettings &settings() const { return m_settings; }
    /// The person has left the game.
    [[nodiscard]] bool isOver() const { return m_isOver; }
    /// What could not be done since the last call, each problem once, with how often it happened.
    [[nodiscard]] QVector<Problem> takeProblems();

    // For scenes.

    [[nodiscard]] const SceneMaker &make() const { return *m_make; }

    /// The uppermost scene, nullptr for none.
    [[nodiscard]] Scene *scene() const;
    void push(std::unique_ptr<Scene> scene);
    /// Ends the uppermost scene; the one below resumes with this result.
    void pop(int result = 0);
    /// Ends all scenes, and begins with this one.
    void begin(std::unique_ptr<Scene> scene);
    /// A new game, on the map where it starts.
    void beginNewGame();
    /// Goes on with a saved game, on its map.
    void beginSaved(const GameState &state);
    void beginTitle();
    void end() { m_isOver = true; }
    /// Battles by chance take place; a script may do without.
    [[nodiscard]] bool hasEncounters() const { return m_hasEncounters; }
    void setEncounters(bool isOn) { m_hasEncounters = isOn; }

    /// Heard once.
    void play(const Sound &sound);
    /// Heard from now on, with 0 ticks at once; a sound without a file ends it.
    void setMusic(const Sound &music, int fadeTicks = 0);
    /// The same problem is counted. Of one line a few different ones are told and of a game some hundreds;
    /// the rest is dropped.
    void tell(const Problem &problem);

private:
    enum class Change { kPush, kPop, kBegin };
    struct Order
    {
        Change change;
        std::unique_ptr<Scene> scene;
        int result = 0;
    };

    void applyOrders();
    void compose();

    std::shared_ptr<const GameData> m_data;
    GameSettings m_settings;
    std::unique_ptr<const SceneMaker> m_make;
    GameState m_state;
    std::vector<std::unique_ptr<Scene>> m_scenes;
    std::vector<Order> m_orders;
    Frame m_frame;
    QVector<Sound> m_sounds;
    int m_musicFade = 0;
    QVector<Problem> m_told;
    QVector<Problem> m_problems;
    bool m_isOver = false;
    bool m_hasEncounters = true;
};

} // namespace player
