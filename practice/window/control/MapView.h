#pragma once

#include <QPoint>
#include <QWidget>

class EditorTools;
class MapBoard;
class MapPainter;

/// Shows the board's map and paints on it with the present tool; in event mode it shows the events and moves
/// them. As large as the map; put it into a scroll area.
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
    [[nodiscard]] QPoint markedCell() const;
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
    /// The left button was clicked twice on a cell, in event mode.
    void opened();
    /// The right button was clicked; @p position in global screen pixels.
    void menuRequested(const QPoint &position);
    /// The keys that delete, copy and paste were pressed, in event mode.
    void deleteRequested();
    void copyRequested();
    void pasteRequested();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    [[nodiscard]] QPoint cellAt(const QPoint &position) const;
    [[nodiscard]] bool drawsOnRelease() const;
    void paintEvents(QPainter *painter) const;
    using Wish = void (MapView::*)();
    /// What the key asks for; nullptr for a key that is left to others.
    [[nodiscard]] Wish wishOf(const QKeyEvent *event) const;
    void paintMark(QPainter *painter) const;
    void finishStroke();

    MapBoard *m_board;
    const EditorTools *m_tools;
    MapPainter *m_painter;
    /// The left button is down: the tool draws, or an event is moved.
    bool m_drawing = false;
    QPoint m_strokeStart;
    QPoint m_strokeEnd;
    bool m_isAtKeyboard = false;
};
