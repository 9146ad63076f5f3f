#include "project/GameMap.h"

#include <QJsonObject>
#include <QRect>

#include <cstdlib>

namespace {

QRect spanned(const QPoint &from, const QPoint &to)
{
    return QRect(QPoint(qMin(from.x(), to.x()), qMin(from.y(), to.y())),
                 QPoint(qMax(from.x(), to.x()), qMax(from.y(), to.y())));
}

} // namespace

GameMap GameMap::blank(const QSize &cells, int ground)
{
    GameMap map;
    map.size = cells;
    for (Layer &layer : map.layers) {
        layer.fill(kEmpty, cells.width() * cells.height());
    }
    map.layers[0].fill(ground);
    return map;
}

GameMap GameMap::fromFile(const QJsonValue &file)
{
    const QSize size(qBound(1, file[QLatin1String("width")].toInt(), kLargest),
                     qBound(1, file[QLatin1String("height")].toInt(), kLargest));
    GameMap map = blank(size, kEmpty);
    map.displayName = file[QLatin1String("displayName")].toString();
    map.tileSet = qMax(0, file[QLatin1String("tilesetId")].toInt() - 1);
    const QJsonArray data = file[QLatin1String("data")].toArray();
    const int cells = size.width() * size.height();
    for (int i = 0; i < qMin(int(data.size()), kLayers * cells); ++i) {
        map.layers[std::size_t(i / cells)][i % cells] = data.at(i).toInt() - 1;
    }
    return map;
}

bool GameMap::fits(const QJsonValue &file) const
{
    return size == QSize(file[QLatin1String("width")].toInt(), file[QLatin1String("height")].toInt());
}

QJsonValue GameMap::toFile() const
{
    const QJsonObject silence{{QStringLiteral("file"), QString()}, {QStringLiteral("volume"), 90}};
    return QJsonObject{
        {QStringLiteral("displayName"), displayName}, {QStringLiteral("note"), QString()},
        {QStringLiteral("tilesetId"), tileSet + 1},   {QStringLiteral("width"), size.width()},
        {QStringLiteral("height"), size.height()},    {QStringLiteral("music"), silence},
        {QStringLiteral("backdrop"), QString()},      {QStringLiteral("encounterList"), QJsonArray()},
        {QStringLiteral("data"), cellsForFile()},     {QStringLiteral("events"), QJsonArray{QJsonValue()}}};
}

QJsonArray GameMap::cellsForFile() const
{
    QJsonArray data;
    for (const Layer &layer : layers) {
        for (const int tile : layer) {
            data.append(tile + 1);
        }
    }
    return data;
}

int GameMap::placeInFile(int layer, const QPoint &cell) const
{
    return (layer * size.height() + cell.y()) * size.width() + cell.x();
}

bool GameMap::contains(const QPoint &cell) const
{
    return QRect(QPoint(), size).contains(cell);
}

int GameMap::tile(int layer, const QPoint &cell) const
{
    return contains(cell) ? layers[std::size_t(layer)][cell.y() * size.width() + cell.x()] : kEmpty;
}

void GameMap::setTile(int layer, const QPoint &cell, int tile)
{
    if (contains(cell)) {
        layers[std::size_t(layer)][cell.y() * size.width() + cell.x()] = tile;
    }
}

void GameMap::resize(const QSize &cells, int ground)
{
    GameMap resized = blank(cells, ground);
    const QVector<QPoint> places = rectangle(QPoint(), QPoint(cells.width() - 1, cells.height() - 1));
    for (int layer = 0; layer < kLayers; ++layer) {
        for (const QPoint &cell : places) {
            if (contains(cell)) {
                resized.setTile(layer, cell, tile(layer, cell));
            }
        }
    }
    size = resized.size;
    layers = resized.layers;
}

QVector<QPoint> GameMap::rectangle(const QPoint &from, const QPoint &to)
{
    const QRect rect = spanned(from, to);
    QVector<QPoint> cells;
    cells.reserve(rect.width() * rect.height());
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            cells.append({x, y});
        }
    }
    return cells;
}

QVector<QPoint> GameMap::ellipse(const QPoint &from, const QPoint &to)
{
    const QRect rect = spanned(from, to);
    const double middleX = (rect.left() + rect.right()) / 2.0;
    const double middleY = (rect.top() + rect.bottom()) / 2.0;
    QVector<QPoint> cells;
    const QVector<QPoint> places = rectangle(from, to);
    for (const QPoint &cell : places) {
        const double x = (cell.x() - middleX) / (rect.width() / 2.0);
        const double y = (cell.y() - middleY) / (rect.height() / 2.0);
        if (x * x + y * y <= 1.0) {
            cells.append(cell);
        }
    }
    return cells;
}

QVector<QPoint> GameMap::line(const QPoint &from, const QPoint &to)
{
    const QPoint way = to - from;
    const int steps = qMax(1, qMax(std::abs(way.x()), std::abs(way.y())));
    QVector<QPoint> cells;
    for (int step = 0; step <= steps; ++step) {
        cells.append(from +
                     QPoint(qRound(double(way.x()) * step / steps), qRound(double(way.y()) * step / steps)));
    }
    return cells;
}

QVector<QPoint> GameMap::connected(int layer, const QPoint &cell) const
{
    QVector<QPoint> cells;
    if (!contains(cell)) {
        return cells;
    }
    const int wanted = tile(layer, cell);
    QVector<bool> seen(size.width() * size.height(), false);
    QVector<QPoint> open{cell};
    while (!open.isEmpty()) {
        const QPoint at = open.takeLast();
        if (!contains(at) || tile(layer, at) != wanted) {
            continue;
        }
        bool &wasSeen = seen[at.y() * size.width() + at.x()];
        if (wasSeen) {
            continue;
        }
        wasSeen = true;
        cells.append(at);
        open += {at + QPoint(1, 0), at - QPoint(1, 0), at + QPoint(0, 1), at - QPoint(0, 1)};
    }
    return cells;
}
