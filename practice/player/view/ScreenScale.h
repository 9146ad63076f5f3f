#pragma once

#include "player/scene/Frame.h"

#include <QRect>
#include <QRectF>
#include <QtMath>

namespace player {

/// How the screen of the game lies on that of the device: as large as it fits, in the middle, with a cell of
/// a whole number of pixels, so that tiles meet without a seam. Coordinates of the device are its own pixels.
struct ScreenScale
{
    /// Width and height of a cell of the map, in pixels of the device.
    int cell = Frame::kCell;
    /// Upper left corner of the game's screen.
    QPoint corner;

    [[nodiscard]] static ScreenScale fit(const QSize &device);
    /// Pixels of the device that so many cells take for a screen of the game.
    [[nodiscard]] static QSize sizeWith(int cellPixels);

    [[nodiscard]] double factor() const { return double(cell) / Frame::kCell; }
    [[nodiscard]] int length(double gamePixels) const { return qRound(gamePixels * factor()); }
    /// From the corner of the game's screen.
    [[nodiscard]] QPoint point(const QPointF &game) const { return {length(game.x()), length(game.y())}; }
    /// Neighbours stay neighbours.
    [[nodiscard]] QRect rect(const QRectF &game) const
    {
        return {point(game.topLeft()), point(game.bottomRight()) - QPoint(1, 1)};
    }
    /// The whole screen of the game, from its corner.
    [[nodiscard]] QSize size() const { return sizeWith(cell); }
    /// From the corner of the device to game pixels.
    [[nodiscard]] QPointF toGame(const QPointF &device) const { return (device - corner) / factor(); }

    friend bool operator==(const ScreenScale &left, const ScreenScale &right)
    {
        return left.cell == right.cell && left.corner == right.corner;
    }
};

} // namespace player
