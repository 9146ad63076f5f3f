#include "window/MapPainter.h"

#include "window/Pictures.h"
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

void MapPainter::drawEvent(QPainter &painter, const QString &picture, const QRect &cell)
{
    auto person = m_people.find(picture);
    if (person == m_people.end()) {
        person = m_people.insert(picture, Pictures::load(QStringLiteral("characters"), picture));
    }
    const QRect frame = cell.adjusted(2, 2, -3, -3);
    painter.fillRect(frame, QColor(0, 0, 0, 70));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!person->isNull()) {
        const QSize size = person->size().scaled(frame.size(), Qt::KeepAspectRatio);
        const QPoint at = frame.center() - QPoint(size.width() / 2, size.height() / 2);
        painter.drawPixmap(QRect(at, size), *person);
    }
    painter.setPen(QColor(255, 255, 255, 190));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
}

QPixmap MapPainter::tileSetPicture(int tileSet, const QSize &size)
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
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

MapPainter::Fit MapPainter::fit(const GameMap &map, const QSize &size)
{
    const int pixels = qMax(1, qMin(size.width() / map.size.width(), size.height() / map.size.height()));
    const QSize margins = (size - map.size * pixels) / 2;
    return {QPoint(margins.width(), margins.height()), pixels};
}

QPixmap MapPainter::mapPicture(const GameMap &map, const QSize &size)
{
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    const Fit place = fit(map, size);
    QPainter painter(&picture);
    painter.translate(place.corner);
    drawMap(painter, map, place.cellPixels, QRect(QPoint(), map.size * place.cellPixels));
    return picture;
}

QPixmap MapPainter::scene(const GameMap &map, const QVector<MapEvents::Event> &events, const QSize &size)
{
    QPixmap picture = mapPicture(map, size);
    QPainter painter(&picture);
    const Fit place = fit(map, size);
    for (const MapEvents::Event &event : events) {
        drawEvent(painter, event.picture, place.rectOf(event.cell));
    }
    return picture;
}

QPixmap MapPainter::wayPicture(const GameMap &map, const QVector<MapEvents::Event> &events,
                               const QVector<QPoint> &cells, const QSize &size)
{
    QPixmap picture = scene(map, events, size);
    const Fit place = fit(map, size);
    QPolygon way;
    for (const QPoint &cell : cells) {
        way.append(place.rectOf(cell).center());
    }
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const int width = qMax(2, place.cellPixels / 5);
    painter.setPen(QPen(Qt::black, width + 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(way);
    painter.setPen(QPen(QColor(0xff, 0xd0, 0x40), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(way);
    // A ring where it begins, a disc where it ends.
    const int radius = qMax(3, place.cellPixels / 3);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(QColor(0xff, 0xd0, 0x40));
    painter.drawEllipse(way.constLast(), radius, radius);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 2));
    painter.drawEllipse(way.constFirst(), radius, radius);
    return picture;
}
