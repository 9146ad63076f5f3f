#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QVector>

#include <array>

/// One map: its properties and three layers of cells, each holding the number of a tile or kEmpty. Cell
/// positions are (column, row) from the top left.
///
/// In the map's data file tile 1 is the first one and 0 an empty cell; "data" holds the cells row by row,
/// layer behind layer.
struct GameMap
{
    static constexpr int kEmpty = -1;
    static constexpr int kLayers = 3;
    using Layer = QVector<int>;
    using Layers = std::array<Layer, kLayers>;

    static constexpr int kLargest = 256;

    QString name;
    /// The name that the player of the game sees.
    QString displayName;
    /// Place of its tile set, from 0; the data file counts from 1.
    int tileSet = 0;
    QSize size;
    Layers layers;

    /// A map of @p cells with the tile @p ground all over layer 0.
    static GameMap blank(const QSize &cells, int ground);

    /// The map in a data file. Whatever the file lacks or has in another form is empty, and a side has 1 to
    /// kLargest cells; the name stands elsewhere. Numbers that no tile has stay what they are.
    static GameMap fromFile(const QJsonValue &file);
    /// Whether the file says this size: the cells of another one are not where placeInFile() has them.
    [[nodiscard]] bool fits(const QJsonValue &file) const;

    /// The data file of a new map like this one, without events.
    [[nodiscard]] QJsonValue toFile() const;
    /// The cells as the data file has them.
    [[nodiscard]] QJsonArray cellsForFile() const;

    /// The place of a cell in the "data" of the file.
    [[nodiscard]] int placeInFile(int layer, const QPoint &cell) const;

    [[nodiscard]] bool contains(const QPoint &cell) const;
    [[nodiscard]] int tile(int layer, const QPoint &cell) const;

    /// Does nothing outside the map.
    void setTile(int layer, const QPoint &cell, int tile);

    /// Keeps the cells that both sizes have; new ones get the tile @p ground on layer 0.
    void resize(const QSize &cells, int ground);

    /// The cells that a drawing tool covers between two corners, and the line between two cells.
    static QVector<QPoint> rectangle(const QPoint &from, const QPoint &to);
    static QVector<QPoint> ellipse(const QPoint &from, const QPoint &to);
    static QVector<QPoint> line(const QPoint &from, const QPoint &to);

    /// The cell and all that hang together with it, edge to edge, with the same tile in @p layer.
    [[nodiscard]] QVector<QPoint> connected(int layer, const QPoint &cell) const;
};
