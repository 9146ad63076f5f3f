#pragma once

#include "project/GameMap.h"
#include "project/events/MapEvents.h"

#include <QWidget>

#include <optional>

class MapPainter;

/// Shows a whole map with its events, as large as it fits, and lets the person choose one of its cells with
/// the mouse or the arrow keys.
class CellPicker : public QWidget
{
    Q_OBJECT

public:
    /// @p painter outlives the picker.
    explicit CellPicker(MapPainter *painter, QWidget *parent = nullptr);

    /// Shows this map with this cell chosen.
    void setMap(const GameMap &map, const QVector<MapEvents::Event> &events, const QPoint &cell);

Q_SIGNALS:
    void cellChosen(const QPoint &cell);
    /// The chosen cell was double-clicked.
    void cellOpened();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    /// The cell under the mouse; nothing beside the map.
    [[nodiscard]] std::optional<QPoint> cellUnder(const QMouseEvent &event) const;
    void choose(const QPoint &cell);

    MapPainter *m_painter;
    GameMap m_map;
    QVector<MapEvents::Event> m_events;
    QPoint m_cell;
};
