#pragma once

#include "window/GameMap.h"

#include <QMap>
#include <QStringList>

/// What the windows show of a project's data files: its maps, and the names in its lists.
struct ProjectContents
{
    /// In the order of the tree of maps, each behind the map it belongs to.
    QVector<GameMap> maps;
    /// Names by the list's source; row 0 is the entry with the number 1.
    QMap<QString, QStringList> names;

    /// The sources of lists that come from data files, such as "items".
    static QStringList sources();

    /// Reads @p files, path inside the project to text, such as "data/Items.json". What is missing or no JSON
    /// leaves its list empty, or its map blank. Cells with a tile that is not one of the first @p tileCount
    /// are empty.
    static ProjectContents read(const QMap<QString, QString> &files, int tileCount);
};
