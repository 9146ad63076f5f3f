#pragma once

#include "project/StartData.h"

#include <QHash>
#include <QPixmap>

/// Draws tiles and maps in the colours of their tile set and keeps the tiles it drew.
class MapPainter
{
public:
    /// @p data outlives the painter.
    explicit MapPainter(const StartData *data);

    /// One tile, @p pixels wide and high.
    QPixmap tile(int number, int tileSet, int pixels);

    /// The whole map from (0, 0) on; cells outside @p clip (painter coordinates) are left out.
    void drawMap(QPainter &painter, const GameMap &map, int cellPixels, const QRect &clip);

    /// Pictures that fit into @p size: all tiles of a set, or a small view of a map.
    QPixmap tileSetPicture(int tileSet, const QSize &size);
    QPixmap mapPicture(const GameMap &map, const QSize &size);

private:
    const StartData *m_data;
    QHash<quint64, QPixmap> m_tiles;
};
