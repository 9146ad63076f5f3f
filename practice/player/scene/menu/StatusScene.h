#pragma once

#include "player/scene/Scene.h"

#include <QCoreApplication>

namespace player {

/// What one of the party is and can do; left and right turn to the others.
class StatusScene : public Scene
{
    Q_DECLARE_TR_FUNCTIONS(StatusScene)

public:
    /// @p place in the party, from 0.
    explicit StatusScene(int place);

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;

private:
    int m_place;
};

} // namespace player
