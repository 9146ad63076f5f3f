#pragma once

#include "lesson/description/JsonReader.h"
#include "window/GameMap.h"

#include <QColor>

/// What every project of the editor starts from: the tiles, the tile sets, the sample maps and the editor's
/// own texts. Read once from a data file; texts are those of one locale.
struct ProjectData
{
    struct Tile
    {
        QString drawing;
        QString letter;
        QString name;
    };
    /// A tile set colours all tiles with @p tint, as strongly as its alpha says.
    struct TileSet
    {
        QString name;
        QColor tint;
    };

    static constexpr int kTilesPerTab = 8;

    /// Tab by tab, kTilesPerTab each: a tile's number is its place here.
    QVector<Tile> tiles;
    QVector<TileSet> tileSets;
    QVector<GameMap> sampleMaps;
    /// The maps of a new project.
    QVector<GameMap> startMaps;
    QMap<QString, QString> texts;

    /// Adds a line to @p errors for each thing that is wrong; the result is then of no use.
    static ProjectData read(const QString &path, const QString &locale, QStringList *errors);
};
