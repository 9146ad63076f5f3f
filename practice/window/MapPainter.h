#pragma once

#include "project/StartData.h"
#include "project/events/MapEvents.h"

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

    /// An event on a cell at @p cell (painter coordinates), with the picture of this name or an empty frame.
    void drawEvent(QPainter &painter, const QString &picture, const QRect &cell);

    /// Pictures that fit into @p size: all tiles of a set, or a small view of a map.
    QPixmap tileSetPicture(int tileSet, const QSize &size);
    QPixmap mapPicture(const GameMap &map, const QSize &size);

    /// Where a picture of the whole map that fits into @p size has the map, and how large its cells are.
    struct Fit
    {
        QPoint corner;
        int cellPixels = 1;

        [[nodiscard]] QRect rectOf(const QPoint &cell) const
        {
            return {corner + cell * cellPixels, QSize(cellPixels, cellPixels)};
        }
    };
    [[nodiscard]] static Fit fit(const GameMap &map, const QSize &size);
    /// The map with its events in a picture of this size.
    QPixmap scene(const GameMap &map, const QVector<MapEvents::Event> &events, const QSize &size);
    /// The same with a way through these cells drawn on it.
    QPixmap wayPicture(const GameMap &map, const QVector<MapEvents::Event> &events,
                       const QVector<QPoint> &cells, const QSize &size);

private:
    const StartData *m_data;
    QHash<quint64, QPixmap> m_tiles;
    /// Pictures of events by name, as large as they are.
    QHash<QString, QPixmap> m_people;
};
