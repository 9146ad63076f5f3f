#pragma once

#include "project/DataFiles.h"
#include "project/EditorTools.h"
#include "project/GameMap.h"

/// The cells of the map on show, and the strokes of the person's tools on them. One stroke is one step of the
/// history.
class MapBoard : public QObject
{
    Q_OBJECT

public:
    /// @p files, @p sources and @p tools outlive the board; the source "maps" says which map is on show.
    MapBoard(DataFiles *files, const RowSources *sources, const EditorTools *tools,
             QObject *parent = nullptr);

    /// Number of the map on show; -1 when there is none.
    [[nodiscard]] int number() const;

    /// The map on show, or nullptr when there is none. Valid until the next change.
    [[nodiscard]] const GameMap *map() const;

    /// Cells that the present tool changes when it is drawn from one cell to another.
    [[nodiscard]] QVector<QPoint> cellsOfStroke(const QPoint &from, const QPoint &to) const;

    /// What is painted from here on is a stroke of its own.
    void beginStroke();
    /// Gives the cells the present tile, or empties them; those outside of the map are left out. A map that
    /// is larger than this editor's maps is left as it is.
    void paint(const QVector<QPoint> &cells);

private:
    DataFiles *m_files;
    const RowSources *m_sources;
    const EditorTools *m_tools;
    int m_stroke = 0;
    /// Read when it is asked for; nothing while it is to be read again.
    mutable std::optional<GameMap> m_map;
};
