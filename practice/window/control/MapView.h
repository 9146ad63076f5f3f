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

    /// The cell that the keyboard is at, and the one that was pressed last; it is marked in event mode, and
    /// while the keyboard is used.
    [[nodiscard]] QPoint markedCell() const { return m_cursor; }
    /// Marks the cell of the map that is nearest to @p cell.
    void setMarkedCell(const QPoint &cell);
    /// The cell in which the left button went down last, and the one to which the mouse went on from there.
    [[nodiscard]] QPoint strokeStart() const { return m_strokeStart; }
    [[nodiscard]] QPoint strokeEnd() const { return m_strokeEnd; }
    /// Of a cell, in pixels.
    [[nodiscard]] QRect rectOf(const QPoint &cell) const;
    /// Tells where the marked cell is.
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

Q_SIGNALS:
    /// The left button went down on the map.
    void pressed();
    /// The left button came up again on the map.
    void clicked();
    /// The right button was clicked; @p position in global screen pixels.
    void menuRequested(const QPoint &position);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
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
    QPoint m_cursor;
    bool m_isAtKeyboard = false;
};
