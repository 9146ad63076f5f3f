#include "window/control/MapView.h"

#include "project/MapBoard.h"
#include "window/MapPainter.h"

#include <QMouseEvent>
#include <QPainter>

MapView::MapView(MapBoard *board, const EditorTools *tools, MapPainter *painter, QWidget *parent)
    : QWidget(parent)
    , m_board(board)
    , m_tools(tools)
    , m_painter(painter)
{
    setFocusPolicy(Qt::StrongFocus);
}

void MapView::refresh()
{
    const GameMap *map = m_board->map();
    setVisible(map != nullptr);
    resize(map != nullptr ? map->size * m_tools->cellPixels() : QSize());
    update();
}

void MapView::setMarkedCell(const QPoint &cell)
{
    const GameMap *map = m_board->map();
    if (map == nullptr) {
        return;
    }
    m_cursor = {qBound(0, cell.x(), map->size.width() - 1), qBound(0, cell.y(), map->size.height() - 1)};
    m_isAtKeyboard = hasFocus();
    update();
}

QRect MapView::rectOf(const QPoint &cell) const
{
    const int pixels = m_tools->cellPixels();
    return {cell * pixels, QSize(pixels, pixels)};
}

QVariant MapView::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return query == Qt::ImCursorRectangle ? QVariant(rectOf(m_cursor)) : QWidget::inputMethodQuery(query);
}

void MapView::focusInEvent(QFocusEvent *event)
{
    m_isAtKeyboard = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    QWidget::focusInEvent(event);
}

void MapView::focusOutEvent(QFocusEvent *event)
{
    m_isAtKeyboard = false;
    QWidget::focusOutEvent(event);
}

QPoint MapView::cellAt(const QPoint &position) const
{
    const int pixels = m_tools->cellPixels();
    return {position.x() / pixels, position.y() / pixels};
}

bool MapView::drawsOnRelease() const
{
    const EditorTools::Tool tool = m_tools->tool();
    return tool == EditorTools::Tool::kRectangle || tool == EditorTools::Tool::kEllipse;
}

void MapView::paintEvent(QPaintEvent *event)
{
    const GameMap *map = m_board->map();
    if (map == nullptr) {
        return;
    }
    const int pixels = m_tools->cellPixels();
    QPainter painter(this);
    painter.fillRect(event->rect(), QColor(0x30, 0x34, 0x3c));
    m_painter->drawMap(painter, *map, pixels, event->rect());
    if (m_tools->hasGrid() || m_tools->isEventMode()) {
        painter.setPen(QColor(0, 0, 0, 70));
        for (int x = pixels; x < width(); x += pixels) {
            painter.drawLine(x, 0, x, height());
        }
        for (int y = pixels; y < height(); y += pixels) {
            painter.drawLine(0, y, width(), y);
        }
    }
    if (m_tools->isEventMode() || m_isAtKeyboard) {
        painter.setPen(QPen(Qt::black, 1));
        painter.drawRect(rectOf(m_cursor).adjusted(0, 0, -1, -1));
        painter.setPen(QPen(Qt::white, 3));
        painter.drawRect(rectOf(m_cursor).adjusted(2, 2, -3, -3));
    }
    if (m_drawing && drawsOnRelease()) {
        const QVector<QPoint> cells = m_board->cellsOfStroke(m_strokeStart, m_strokeEnd);
        for (const QPoint &cell : cells) {
            painter.fillRect(QRect(cell * pixels, QSize(pixels, pixels)), QColor(255, 255, 255, 110));
        }
    }
}

void MapView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_strokeStart = cellAt(event->pos());
    m_strokeEnd = m_strokeStart;
    m_cursor = m_strokeStart;
    m_isAtKeyboard = false;
    if (m_tools->isEventMode()) {
        update();
    } else {
        m_drawing = true;
        m_board->beginStroke();
        if (!drawsOnRelease()) {
            m_board->paint(m_board->cellsOfStroke(m_strokeStart, m_strokeEnd));
        }
    }
    Q_EMIT pressed();
}

void MapView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint cell = cellAt(event->pos());
    const bool isHeld = m_drawing || event->buttons().testFlag(Qt::LeftButton);
    if (!isHeld || cell == m_strokeEnd) {
        return;
    }
    // In event mode nothing is drawn, and yet it is a drag.
    if (m_drawing && drawsOnRelease()) {
        update();
    } else if (m_drawing) {
        m_board->paint(m_board->cellsOfStroke(m_strokeEnd, cell));
    }
    m_strokeEnd = cell;
}

void MapView::mouseReleaseEvent(QMouseEvent *event)
{
    const bool inside = rect().contains(event->pos());
    if (event->button() == Qt::RightButton && inside) {
        Q_EMIT menuRequested(event->globalPos());
    }
    if (event->button() != Qt::LeftButton) {
        return;
    }
    if (m_drawing && drawsOnRelease()) {
        m_board->paint(m_board->cellsOfStroke(m_strokeStart, m_strokeEnd));
    }
    m_drawing = false;
    if (inside) {
        Q_EMIT clicked();
    }
}
