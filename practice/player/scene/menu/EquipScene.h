#pragma once

#include "player/scene/ListPanel.h"
#include "player/scene/Scene.h"

#include <QCoreApplication>

namespace player {

struct Actor;

/// What one of the party wears; what would change by other things from the bag is shown.
class EquipScene : public Scene
{
    Q_DECLARE_TR_FUNCTIONS(EquipScene)

public:
    /// @p place in the party, from 0.
    explicit EquipScene(int place);

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;

private:
    void listWorn(const Game &game);
    void listChoices(const Game &game);
    void putOn(Game *game);
    [[nodiscard]] const Actor *actor(const Game &game) const;
    [[nodiscard]] bool isWeapon() const { return m_worn.currentRow() == 0; }

    int m_place;
    ListPanel m_worn;
    ListPanel m_choices;
    bool m_isListed = false;
    bool m_isChoosing = false;
};

} // namespace player
