#pragma once

#include "player/scene/Scene.h"
#include "player/scene/menu/UseOnParty.h"

namespace player {

struct Actor;

/// The skills of one of the party.
class SkillScene : public Scene
{
    Q_DECLARE_TR_FUNCTIONS(SkillScene)

public:
    /// @p place in the party, from 0.
    explicit SkillScene(int place);

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;

private:
    void list(Game *game);
    void used(Game *game);
    [[nodiscard]] const Actor *actor(const Game &game) const;

    int m_place;
    ListPanel m_list;
    UseOnParty m_use;
    QString m_notice;
    bool m_isListed = false;
};

} // namespace player
