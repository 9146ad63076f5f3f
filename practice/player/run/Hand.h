#pragma once

#include "player/scene/Game.h"

#include <functional>
#include <optional>

namespace player {

class MapScene;

/// Plays a game as a person does, by keys, clicks and letters, as fast as it can; and keeps what was seen.
class Hand
{
public:
    /// The game has to outlive it.
    explicit Hand(Game *game);

    [[nodiscard]] Game &game() { return *m_game; }
    [[nodiscard]] const Frame &frame() const { return m_game->frame(); }
    [[nodiscard]] const GameState &state() const { return m_game->state(); }

    void tick(const Input &input = {});
    void press(GameKey key);
    /// Ticks until @p holds, at most so many times; whether it does.
    bool until(int ticks, const std::function<bool()> &holds);

    /// Whatever has the screen.
    [[nodiscard]] const Scene *scene() const { return m_game->scene(); }
    /// The map, while it has the screen; nullptr otherwise.
    [[nodiscard]] const MapScene *map() const;
    [[nodiscard]] MapScene *map();
    [[nodiscard]] bool isBattle() const;
    /// The hero stands on a map, and nothing keeps him from walking.
    [[nodiscard]] bool isFree() const;
    /// Something on the screen waits for a key or an answer.
    [[nodiscard]] bool isAsked() const;
    /// Where the hero stands, and what there is on the screen, for a person.
    [[nodiscard]] QString whereabouts() const;
    /// All texts on the screen, panel by panel.
    [[nodiscard]] QString seen() const;
    /// The texts of one panel in one line.
    [[nodiscard]] static QString textOf(const Panel &panel);

    /// Goes through messages, scrolling texts and what happens between them, up to where something has to be
    /// chosen, or the hero is free. False when that does not come within two minutes of the game.
    bool goOn();

    /// Problems that were told so far.
    [[nodiscard]] const QVector<Problem> &problems() const { return m_problems; }
    /// Sounds that were heard so far.
    [[nodiscard]] const QVector<Sound> &sounds() const { return m_sounds; }
    /// How the last battle on a map ended; nothing while there was none.
    [[nodiscard]] std::optional<BattleOutcome> lastBattle() const { return m_lastBattle; }

private:
    Game *m_game;
    QVector<Problem> m_problems;
    QVector<Sound> m_sounds;
    std::optional<BattleOutcome> m_lastBattle;
};

} // namespace player
