#pragma once

#include "player/scene/ListPanel.h"
#include "player/scene/Scene.h"

#include <QCoreApplication>

namespace player {

/// What a game begins with: its picture, its title, and what can be done.
class TitleScene : public Scene
{
    Q_DECLARE_TR_FUNCTIONS(TitleScene)

public:
    TitleScene();

    void tick(const Input &input, Game *game) override;
    void show(const Game &game, Frame *frame) const override;
    /// A saved game may be there, or be gone.
    void resume(int result, Game *game) override;

private:
    enum Command { kNewGame, kContinue, kOptions, kCredits, kQuit };

    void list(const Game &game);
    [[nodiscard]] static ListRow row(const QString &command, const QString &text, bool hasSaves);

    ListPanel m_list;
    bool m_isListed = false;
};

} // namespace player
