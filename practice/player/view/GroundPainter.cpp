#include "player/view/GroundPainter.h"

#include <QPainter>

namespace player {

namespace {

/// Cells around those that are seen.
constexpr int kAround = 2;

} // namespace

GroundPainter::GroundPainter(Artwork *artwork)
    : m_artwork(artwork)
{
}

void GroundPainter::paint(QPainter *painter, const MapData &map, const QPointF &origin,
                          const ScreenScale &scale)
{
    const QRect seen(QPoint(qFloor(origin.x()), qFloor(origin.y())),
                     QPoint(qCeil(origin.x() + double(Frame::kWidth) / Frame::kCell),
                            qCeil(origin.y() + double(Frame::kHeight) / Frame::kCell)));
    const QRect all(QPoint(), map.size);
    const QRect shown = seen.intersected(all);
    if (shown.isEmpty()) {
        return;
    }
    if (m_map != &map || m_cellPixels != scale.cell || !m_cells.contains(shown)) {
        m_map = &map;
        m_cellPixels = scale.cell;
        m_cells = seen.adjusted(-kAround, -kAround, kAround, kAround).intersected(all);
        draw(map, scale.cell);
    }
    const QPointF place = (QPointF(m_cells.topLeft()) - origin) * scale.cell;
    painter->drawPixmap(QPoint(qRound(place.x()), qRound(place.y())), m_picture);
}

void GroundPainter::draw(const MapData &map, int cellPixels)
{
    m_picture = QPixmap(m_cells.size() * cellPixels);
    m_picture.fill(Qt::black);
    QPainter painter(&m_picture);
    for (int layer = 0; layer < MapData::kLayers; ++layer) {
        for (int y = m_cells.top(); y <= m_cells.bottom(); ++y) {
            for (int x = m_cells.left(); x <= m_cells.right(); ++x) {
                if (const int tile = map.tile(layer, {x, y}); tile > 0) {
                    painter.drawPixmap((QPoint(x, y) - m_cells.topLeft()) * cellPixels,
                                       m_artwork->tile(tile, map.tileSet, cellPixels));
                }
            }
        }
    }
}

} // namespace player
