#pragma once

#include <QPoint>
#include <QWidget>

class EditorTools;
class MapBoard;
class MapPainter;

/// Shows the board's map and paints on it with the present tool. As large as the map; put it into a scroll
/// area.
class MapView : public QWidget
{
    Q_OBJECT

public:
    /// All of them outlive the view.
    MapView(MapBoard *board, const EditorTools *tools, MapPainter *painter, QWidget *parent = nullptr);

    /// Shows what there is now.
    void refresh();

Q_SIGNALS:
    /// The left button went down on the map.
    void pressed();
    /// The left button came up again on the map.
    void clicked();
    /// The right button was clicked; @p position in global screen pixels.
    void menuRequested(const QPoint &position);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    [[nodiscard]] QPoint cellAt(const QPoint &position) const;
    [[nodiscard]] bool drawsOnRelease() const;

    MapBoard *m_board;
    const EditorTools *m_tools;
    MapPainter *m_painter;
    bool m_drawing = false;
    QPoint m_strokeStart;
    QPoint m_strokeEnd;
    /// The cell that is marked in event mode.
    QPoint m_cursor;
};
