#include "window/control/MapView.h"

#include "project/MapBoard.h"
#include "window/MapPainter.h"
#include "window/control/DeleteKey.h"

#include <QKeyEvent>
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

QPoint MapView::markedCell() const
{
    return m_board->cursor();
}

void MapView::setMarkedCell(const QPoint &cell)
{
    if (m_board->map() != nullptr) {
        m_isAtKeyboard = hasFocus();
        m_board->setCursor(cell);
    }
}

QRect MapView::rectOf(const QPoint &cell) const
{
    const int pixels = m_tools->cellPixels();
    return {cell * pixels, QSize(pixels, pixels)};
}

QVariant MapView::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return query == Qt::ImCursorRectangle ? QVariant(rectOf(markedCell())) : QWidget::inputMethodQuery(query);
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

MapView::Wish MapView::wishOf(const QKeyEvent *event) const
{
    if (!m_tools->isEventMode()) {
        return nullptr;
    }
    if (isDeleteKey(*event)) {
        return &MapView::deleteRequested;
    }
    if (event->matches(QKeySequence::Copy)) {
        return &MapView::copyRequested;
    }
    return event->matches(QKeySequence::Paste) ? &MapView::pasteRequested : nullptr;
}

bool MapView::event(QEvent *event)
{
    // The map's own keys go before those of the menu bar.
    if (event->type() == QEvent::ShortcutOverride && wishOf(static_cast<QKeyEvent *>(event)) != nullptr) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void MapView::keyPressEvent(QKeyEvent *event)
{
    if (const Wish wish = wishOf(event)) {
        Q_EMIT(this->*wish)();
    } else {
        QWidget::keyPressEvent(event);
    }
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
    if (m_tools->isEventMode()) {
        paintEvents(&painter);
    }
    if (m_tools->isEventMode() || m_isAtKeyboard) {
        paintMark(&painter);
    }
    if (m_drawing && !m_tools->isEventMode() && drawsOnRelease()) {
        const QVector<QPoint> cells = m_board->cellsOfStroke(m_strokeStart, m_strokeEnd);
        for (const QPoint &cell : cells) {
            painter.fillRect(rectOf(cell), QColor(255, 255, 255, 110));
        }
    }
}

void MapView::paintEvents(QPainter *painter) const
{
    const QVector<MapEvents::Event> events = m_board->events();
    for (const MapEvents::Event &event : events) {
        const bool isMoved = m_drawing && event.cell == m_strokeStart;
        m_painter->drawEvent(*painter, event.picture, rectOf(isMoved ? m_strokeEnd : event.cell));
    }
}

void MapView::paintMark(QPainter *painter) const
{
    const bool isMoving = m_drawing && m_tools->isEventMode();
    const QRect cell = rectOf(isMoving ? m_strokeEnd : markedCell());
    painter->setPen(QPen(Qt::black, 1));
    painter->drawRect(cell.adjusted(0, 0, -1, -1));
    painter->setPen(QPen(Qt::white, 3));
    painter->drawRect(cell.adjusted(2, 2, -3, -3));
}

void MapView::mousePressEvent(QMouseEvent *event)
{
    const QPoint cell = cellAt(event->pos());
    if (event->button() == Qt::LeftButton || m_tools->isEventMode()) {
        m_board->setCursor(cell);
    }
    if (event->button() != Qt::LeftButton) {
        return;
    }
    m_strokeStart = cell;
    m_strokeEnd = cell;
    m_isAtKeyboard = false;
    m_drawing = true;
    if (!m_tools->isEventMode()) {
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
    if (!m_drawing || cell == m_strokeEnd) {
        return;
    }
    if (m_tools->isEventMode() || drawsOnRelease()) {
        update();
    } else {
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
    // The second click of two has no press of its own in event mode.
    if (event->button() != Qt::LeftButton || !m_drawing) {
        return;
    }
    finishStroke();
    if (inside) {
        Q_EMIT clicked();
    }
}

void MapView::finishStroke()
{
    m_drawing = false;
    if (m_tools->isEventMode()) {
        if (m_strokeEnd != m_strokeStart) {
            m_board->moveEvent(m_strokeStart, m_strokeEnd);
            update();
        }
    } else if (drawsOnRelease()) {
        m_board->paint(m_board->cellsOfStroke(m_strokeStart, m_strokeEnd));
    }
}

void MapView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (m_tools->isEventMode() && event->button() == Qt::LeftButton) {
        m_board->setCursor(cellAt(event->pos()));
        Q_EMIT opened();
    } else {
        mousePressEvent(event);
    }
}
