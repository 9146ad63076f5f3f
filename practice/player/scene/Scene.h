#pragma once

#include "player/game/Input.h"
#include "player/scene/Frame.h"

namespace player {

class Game;

/// One part of a game that has the screen for itself: the map, a battle, the menu. Scenes stand on a stack,
/// and the uppermost one gets the ticks.
class Scene
{
public:
    Scene() = default;
    Scene(const Scene &) = delete;
    Scene &operator=(const Scene &) = delete;
    virtual ~Scene();

    /// A sixtieth of a second. What the scene asks of the stack is done when this has returned.
    virtual void tick(const Input &input, Game *game) = 0;
    /// What is seen of it. What it leaves out is empty; the screen's tint, fade, weather and pictures, music
    /// and sounds are filled in by the game.
    virtual void show(const Game &game, Frame *frame) const = 0;
    /// The scene that it put above itself has ended with this result.
    virtual void resume(int result, Game *game);
    /// Whether the scene below is drawn beneath its panels.
    [[nodiscard]] virtual bool isTranslucent() const { return false; }
};

} // namespace player
