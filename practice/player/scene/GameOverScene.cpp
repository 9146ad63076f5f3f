#include "player/scene/GameOverScene.h"

#include "player/scene/Game.h"

namespace player {

namespace {

/// Keys that were meant for the battle do not count.
constexpr int kDeafTicks = 30;
const QRect kRect(160, 120, 320, 120);

} // namespace

GameOverScene::GameOverScene() = default;

void GameOverScene::tick(const Input &input, Game *game)
{
    if (m_ticks++ == 0) {
        game->setMusic({});
    }
    const bool hasKey = input.isPressed(GameKey::kAct) || input.isPressed(GameKey::kCancel);
    if (m_ticks > kDeafTicks && hasKey) {
        game->beginTitle();
    }
}

void GameOverScene::show(const Game &, Frame *frame) const
{
    Panel panel;
    panel.role = QStringLiteral("gameOver");
    panel.rect = kRect;
    panel.title = tr("Game over");
    // The sign that it waits stands in a line of its own.
    panel.lines = {PanelLine(tr("Press Enter to return to the title.")), PanelLine()};
    panel.isWaiting = m_ticks > kDeafTicks;
    frame->panels.append(panel);
}

} // namespace player
