#include "window/MapPainter.h"

#include "window/TileDrawing.h"

#include <QPainter>

MapPainter::MapPainter(const StartData *data)
    : m_data(data)
{
}

QPixmap MapPainter::tile(int number, int tileSet, int pixels)
{
    // A file may name a tile set that is not there: its tiles have no tint.
    const int set = qBound(0, tileSet, int(m_data->tileSets.size()));
    const quint64 key = (quint64(number) << 32U) | (quint64(set) << 16U) | quint64(pixels);
    const auto kept = m_tiles.constFind(key);
    if (kept != m_tiles.constEnd()) {
        return *kept;
    }
    QPixmap pixmap = drawTile(m_data->tiles.value(number).drawing, pixels);
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(pixmap.rect(), m_data->tileSets.value(set).tint);
    painter.end();
    m_tiles.insert(key, pixmap);
    return pixmap;
}

void MapPainter::drawMap(QPainter &painter, const GameMap &map, int cellPixels, const QRect &clip)
{
    const QRect cells = QRect(QPoint(clip.left() / cellPixels, clip.top() / cellPixels),
                              QPoint(clip.right() / cellPixels, clip.bottom() / cellPixels))
                            .intersected(QRect(QPoint(), map.size));
    if (cells.isEmpty()) {
        return;
    }
    const QVector<QPoint> places = GameMap::rectangle(cells.topLeft(), cells.bottomRight());
    for (int layer = 0; layer < GameMap::kLayers; ++layer) {
        for (const QPoint &cell : places) {
            const int number = map.tile(layer, cell);
            // A file may have numbers that no tile has.
            if (number >= 0 && number < m_data->tiles.size()) {
                painter.drawPixmap(cell * cellPixels, tile(number, map.tileSet, cellPixels));
            }
        }
    }
}

QPixmap MapPainter::tileSetPicture(int tileSet, const QSize &size)
{
    QPixmap picture(size);
    picture.fill(Qt::white);
    constexpr int kColumns = StartData::kTilesPerTab;
    const int rows = m_data->tiles.size() / kColumns;
    const int pixels = qMax(1, qMin(size.width() / kColumns, size.height() / qMax(1, rows)));
    const QPoint start((size.width() - pixels * kColumns) / 2, (size.height() - pixels * rows) / 2);
    QPainter painter(&picture);
    for (int number = 0; number < m_data->tiles.size(); ++number) {
        const QPoint at = start + QPoint(number % kColumns, number / kColumns) * pixels;
        painter.drawPixmap(at, tile(number, tileSet, pixels));
    }
    return picture;
}

QPixmap MapPainter::mapPicture(const GameMap &map, const QSize &size)
{
    QPixmap picture(size);
    picture.fill(Qt::white);
    const int pixels = qMax(1, qMin(size.width() / map.size.width(), size.height() / map.size.height()));
    const QSize whole = map.size * pixels;
    QPainter painter(&picture);
    const QSize margins = (size - whole) / 2;
    painter.translate(margins.width(), margins.height());
    drawMap(painter, map, pixels, QRect(QPoint(), whole));
    return picture;
}
