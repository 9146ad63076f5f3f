#include "window/control/CellPicker.h"

#include "window/MapPainter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace {

QPoint stepOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

CellPicker::CellPicker(MapPainter *painter, QWidget *parent)
    : QWidget(parent)
    , m_painter(painter)
    , m_map(GameMap::blank({1, 1}, GameMap::kEmpty))
{
    setFocusPolicy(Qt::StrongFocus);
}

void CellPicker::setMap(const GameMap &map, const QVector<MapEvents::Event> &events, const QPoint &cell)
{
    m_map = map;
    m_events = events;
    m_cell = cell;
    update();
}

void CellPicker::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_painter->scene(m_map, m_events, size()));
    const QRect chosen = MapPainter::fit(m_map, size()).rectOf(m_cell);
    painter.fillRect(chosen, QColor(255, 255, 255, 110));
    painter.setPen(QPen(Qt::black, 3));
    painter.drawRect(chosen);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(chosen);
    painter.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

std::optional<QPoint> CellPicker::cellUnder(const QMouseEvent &event) const
{
    const MapPainter::Fit fit = MapPainter::fit(m_map, size());
    const QPoint at = event.pos() - fit.corner;
    const QPoint cell(at.x() / fit.cellPixels, at.y() / fit.cellPixels);
    const bool isOnMap = at.x() >= 0 && at.y() >= 0 && m_map.contains(cell);
    return isOnMap && event.button() == Qt::LeftButton ? std::optional(cell) : std::nullopt;
}

void CellPicker::mousePressEvent(QMouseEvent *event)
{
    if (const std::optional<QPoint> cell = cellUnder(*event)) {
        choose(*cell);
    }
}

void CellPicker::mouseDoubleClickEvent(QMouseEvent *event)
{
    const std::optional<QPoint> cell = cellUnder(*event);
    if (!cell) {
        return;
    }
    // The first of the two clicks may have been on the cell beside it.
    const bool isChosen = *cell == m_cell;
    choose(*cell);
    if (isChosen) {
        Q_EMIT cellOpened();
    }
}

void CellPicker::keyPressEvent(QKeyEvent *event)
{
    const QPoint step = stepOf(event->key());
    if (step.isNull()) {
        QWidget::keyPressEvent(event);
    } else {
        choose(m_cell + step);
    }
}

void CellPicker::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void CellPicker::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

void CellPicker::choose(const QPoint &cell)
{
    if (m_map.contains(cell)) {
        Q_EMIT cellChosen(cell);
    }
}
