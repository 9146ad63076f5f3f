#pragma once

#include <QByteArray>
#include <QRect>
#include <QVector>

#include <optional>

/// The companion's visible windows as the X server knows them, in global screen pixels.
struct OverlayWatch
{
    struct Button
    {
        QRect rect;
        quint64 window = 0; ///< its id

        [[nodiscard]] bool operator==(const Button &other) const
        {
            return rect == other.rect && window == other.window;
        }
    };

    /// The window with the hint and the arrow.
    std::optional<QRect> bubble;
    /// The buttons, from left to right: Next alone, or Yes and No.
    QVector<Button> buttons;

    /// Reads what "xdotool getwindowgeometry --shell" says of each window.
    [[nodiscard]] static OverlayWatch parse(const QByteArray &geometries);

    [[nodiscard]] bool operator==(const OverlayWatch &other) const
    {
        return bubble == other.bubble && buttons == other.buttons;
    }
};
