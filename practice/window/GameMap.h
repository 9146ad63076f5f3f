#pragma once

#include <QPoint>
#include <QSize>
#include <QString>
#include <QVector>

#include <array>

/// One map of a project: its properties and three layers of cells, each holding the number of a tile or
/// kEmpty. Cell positions are (column, row) from the top left.
struct GameMap
{
    static constexpr int kEmpty = -1;
    static constexpr int kLayers = 3;
    using Layer = QVector<int>;
    using Layers = std::array<Layer, kLayers>;

    QString name;
    QString displayName;
    bool showName = true;
    int tileSet = 0;
    /// Depth in the tree of maps, 0 at the top.
    int level = 0;
    QSize size;
    Layers layers;

    /// A map of @p cells with the tile @p ground all over layer 0.
    static GameMap blank(const QSize &cells, int ground);

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
