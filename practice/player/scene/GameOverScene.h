#pragma once

#include "player/scene/Scene.h"

#include <QCoreApplication>

namespace player {

/// The game is lost; once it is seen and the keys are up, a key leads to the title.
class GameOverScene : public Scene
{
    Q_DECLARE_TR_FUNCTIONS(GameOverScene)

public:
    GameOverScene();

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;

private:
    int m_ticks = 0;
    bool m_isReady = false;
};

} // namespace player
