#include "player/scene/GameOverScene.h"

#include "player/scene/Game.h"

namespace player {

namespace {

/// Keys that were meant for the battle do not count, also those that hurry on once more.
constexpr int kDeafTicks = 3 * GameState::kTicksPerSecond / 2;
const QRect kRect(160, 120, 320, 120);

} // namespace

GameOverScene::GameOverScene() = default;

void GameOverScene::tick(const Input &input, Game *game)
{
    if (m_ticks++ == 0) {
        game->setMusic({});
    }
    const auto isUsed = [&input](GameKey key) {
        return input.isPressed(key) || input.isHeld(key);
    };
    const bool hasKey = isUsed(GameKey::kAct) || isUsed(GameKey::kCancel);
    if (m_isReady && (input.isPressed(GameKey::kAct) || input.isPressed(GameKey::kCancel))) {
        game->beginTitle();
    }
    m_isReady = m_isReady || (m_ticks >= kDeafTicks && !hasKey);
}

void GameOverScene::show(const Game &, Frame *frame) const
{
    Panel panel;
    panel.role = QStringLiteral("gameOver");
    panel.rect = kRect;
    panel.title = tr("Game over");
    const QString help = m_isReady ? tr("Press Enter to return to the title.") : QString();
    // The sign that it waits stands in a line of its own.
    panel.lines = {PanelLine(help), PanelLine()};
    panel.isWaiting = m_isReady;
    frame->panels.append(panel);
}

} // namespace player
