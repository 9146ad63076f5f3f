#pragma once

#include "project/DataFiles.h"
#include "project/EditorTools.h"
#include "project/GameMap.h"
#include "project/StateParts.h"
#include "project/events/MapEvents.h"

/// The cells of the map on show with its events, and the strokes of the person's tools on them. One stroke is
/// one step of the history.
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

    /// The cell that is marked: what is done with events is done there. On the map, whatever size it has.
    [[nodiscard]] QPoint cursor() const;
    /// Marks the cell, or the nearest one on the map, and selects the event on it.
    void setCursor(const QPoint &cell);

    /// Lets the marked cell be kept with the rest of what the editor shows.
    void addTo(StateParts &states);

    /// The events of the map on show.
    [[nodiscard]] QVector<MapEvents::Event> events() const;
    /// Moves the event on one cell to another and marks that. False when that is not free.
    bool moveEvent(const QPoint &from, const QPoint &to);

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
    QPoint m_cursor;
    /// Read when it is asked for; nothing while it is to be read again.
    mutable std::optional<GameMap> m_map;
};
