#pragma once

#include <QRect>
#include <QString>
#include <QVector>

#include <optional>

/// The companion's windows on the screen, in global screen pixels.
struct SeenOverlays
{
    struct Window
    {
        QRect rect;
        quint32 id = 0; ///< as the X server counts windows

        [[nodiscard]] bool operator==(const Window &other) const
        {
            return rect == other.rect && id == other.id;
        }
    };

    /// The window with the hint and the arrow.
    std::optional<QRect> bubble;
    /// The buttons, from left to right: Next alone, or Yes and No.
    QVector<Window> buttons;

    /// Tells them by their sizes from whatever other windows the companion has.
    [[nodiscard]] static SeenOverlays among(const QVector<Window> &windows);

    /// As a message says it, such as "the bubble at (10, 20), 2 buttons".
    [[nodiscard]] QString inWords() const;

    [[nodiscard]] bool operator==(const SeenOverlays &other) const
    {
        return bubble == other.bubble && buttons == other.buttons;
    }
    [[nodiscard]] bool operator!=(const SeenOverlays &other) const { return !(*this == other); }
};
