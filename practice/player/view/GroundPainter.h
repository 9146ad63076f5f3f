#pragma once

#include "player/game/MapData.h"
#include "player/view/Artwork.h"
#include "player/view/ScreenScale.h"

class QPainter;

namespace player {

/// Draws the tiles of a map: those that are seen, and some around them, as one picture that is kept until the
/// view leaves it.
class GroundPainter
{
public:
    /// @p artwork outlives the painter.
    explicit GroundPainter(Artwork *artwork);

    /// @p origin is the cell, with fractions, at the upper left corner of the screen; the painter stands at
    /// that corner.
    void paint(QPainter *painter, const MapData &map, const QPointF &origin, const ScreenScale &scale);

    /// The map or its tiles are other ones.
    void forget() { m_cells = QRect(); }

private:
    void draw(const MapData &map, int cellPixels);

    Artwork *m_artwork;
    QPixmap m_picture;
    /// The cells that the picture has, of which map, and how large they are in it.
    QRect m_cells;
    const MapData *m_map = nullptr;
    int m_cellPixels = 0;
};

} // namespace player
