#pragma once

#include <QByteArray>
#include <QRect>
#include <QVector>

#include <optional>

/// The companion's visible windows as the X server knows them, in global screen pixels.
struct OverlayWatch
{
    /// The window with the hint and the arrow.
    std::optional<QRect> bubble;
    /// The buttons, from left to right: Next alone, or Yes and No.
    QVector<QRect> buttons;

    /// Reads what "xdotool getwindowgeometry --shell" says of each window.
    [[nodiscard]] static OverlayWatch parse(const QByteArray &geometries);

    [[nodiscard]] bool operator==(const OverlayWatch &other) const
    {
        return bubble == other.bubble && buttons == other.buttons;
    }
};
