#pragma once

#include "player/scene/ListPanel.h"
#include "player/scene/Scene.h"

#include <QCoreApplication>

namespace player {

/// The menu over the map. It closes when an item or skill asks for a common event, which the map runs.
class MenuScene : public Scene
{
    Q_DECLARE_TR_FUNCTIONS(MenuScene)

public:
    MenuScene();

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;
    void resume(int result, Game *game) override;

private:
    enum Command { kItems, kSkills, kEquipment, kStatus, kSave, kToTitle };

    void list(const Game &game);
    void tickQuestion(const Input &input, Game *game);
    void choose(Game *game);
    void open(int command, int place, Game *game);

    ListPanel m_commands;
    ListPanel m_party;
    /// Whether the game is to be left.
    ListPanel m_question;
    bool m_isListed = false;
    bool m_isChoosingActor = false;
    bool m_isAsking = false;
};

} // namespace player
