#pragma once

#include "player/game/Input.h"

#include <QMap>

class QKeyEvent;

namespace player {

/// What the person does with keyboard and mouse, gathered for the next tick of the game.
class Keys
{
public:
    /// Whether letters are typed into a name now, and are no keys of the game.
    void setTyping(bool isTyping) { m_isTyping = isTyping; }

    /// False for a key that means nothing to a game.
    bool press(const QKeyEvent &event);
    bool release(const QKeyEvent &event);
    /// A key of the game is pressed and let go at once, as by the mouse.
    void strike(GameKey key);
    void click(const QPoint &cell) { m_input.cell = cell; }
    void choose(int row) { m_input.row = row; }
    void type(const QString &text) { m_input.typed += text; }

    /// What was done since the last call; what is held down stays so.
    [[nodiscard]] Input take();
    /// All keys are let go, as nobody knows what became of them.
    void letGo();

private:
    [[nodiscard]] QVector<GameKey> meaningOf(int key) const;

    Input m_input;
    /// Keys of the keyboard that are down, by their codes.
    QMap<int, QVector<GameKey>> m_down;
    bool m_isTyping = false;
};

} // namespace player
