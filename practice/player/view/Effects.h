#pragma once

#include <QRectF>
#include <QSize>

class QImage;
class QPainter;

namespace player {

/// How the colours of a picture are shifted: -255 to 255 for each, and how grey it becomes, 0 to 255.
struct Tone
{
    int red = 0;
    int green = 0;
    int blue = 0;
    int grey = 0;

    [[nodiscard]] bool isNone() const { return red == 0 && green == 0 && blue == 0 && grey == 0; }
    /// @p image has 32 bits a pixel, none of them transparent.
    void apply(QImage *image) const;
};

/// A moment of the animation with this number, from 0 at its beginning to 1, around the middle of @p rect.
void drawAnimation(QPainter *painter, int animation, double progress, const QRectF &rect);

/// Rain (1), storm (2) or snow (3), as strong as @p power, 0 to 9, at this tick, over all of @p screen.
/// @p factor is how many pixels one of the game has.
void drawWeather(QPainter *painter, int weather, double power, qint64 tick, const QSize &screen,
                 double factor);

} // namespace player
