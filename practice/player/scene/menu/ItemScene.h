#pragma once

#include "player/scene/Scene.h"
#include "player/scene/menu/UseOnParty.h"

namespace player {

/// What is in the bag.
class ItemScene : public Scene
{
    Q_DECLARE_TR_FUNCTIONS(ItemScene)

public:
    ItemScene();

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;

private:
    void list(const Game &game);
    void used(Game *game);

    ListPanel m_list;
    UseOnParty m_use;
    QString m_notice;
    bool m_isListed = false;
};

} // namespace player
