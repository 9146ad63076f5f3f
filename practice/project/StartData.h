#pragma once

#include "lesson/description/JsonReader.h"
#include "project/ChoiceSets.h"
#include "project/GameMap.h"
#include "project/events/EventCommands.h"

#include <QColor>

/// What every project of the editor starts from: the tiles, the tile sets, the sample maps, the data files of
/// a new project and the editor's own texts. Read once; texts are those of one locale.
struct StartData
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
        QString image;
        QColor tint = Qt::transparent;
    };
    struct StartMap
    {
        GameMap map;
        /// Depth in the tree of maps, 0 at the top.
        int level = 0;
    };

    static constexpr int kTilesPerTab = 8;

    /// Tab by tab, kTilesPerTab each: a tile's number is its place here.
    QVector<Tile> tiles;
    QVector<TileSet> tileSets;
    QVector<GameMap> sampleMaps;
    /// The maps of a new project, in the order of their tree.
    QVector<StartMap> startMaps;
    /// Data files that are the same in each new project, by name.
    QMap<QString, QString> startFiles;
    QMap<QString, QString> texts;
    /// Read by ChoiceSets::read().
    ChoiceSets choices;
    /// Read by EventCommands::read().
    EventCommands eventCommands;

    /// Texts of the data files that a new project has, by name, such as "data/Items.json".
    [[nodiscard]] QMap<QString, QString> files() const;

    /// Reads "project.json" in @p folder, and the data files in its "start" that each new project gets as
    /// they are. A tile has one of @p drawings. Adds a line to @p errors for each thing that is wrong; the
    /// result is then of no use.
    static StartData read(const QString &folder, const QStringList &drawings, const QString &locale,
                          QStringList *errors);
};
