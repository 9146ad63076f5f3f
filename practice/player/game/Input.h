#pragma once

#include <QPoint>
#include <QString>
#include <QVector>

#include <optional>

namespace player {

/// The keys of a game; which key of the keyboard is which, the window knows.
enum class GameKey { kUp, kDown, kLeft, kRight, kAct, kCancel, kMenu };

/// What the person did since the last tick.
struct Input
{
    /// Keys that are down now.
    QVector<GameKey> held;
    /// Keys that went down, in their order; one that is held down repeats.
    QVector<GameKey> pressed;
    /// The cell of the map that was clicked.
    std::optional<QPoint> cell;
    /// The row, from 0, that was clicked in the last panel of the frame with rows: it is chosen.
    std::optional<int> row;
    /// Letters that were typed, for the input of a name.
    QString typed;

    [[nodiscard]] bool isHeld(GameKey key) const { return held.contains(key); }
    [[nodiscard]] bool isPressed(GameKey key) const { return pressed.contains(key); }
};

} // namespace player
