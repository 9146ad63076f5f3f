#include "window/control/MapKeys.h"

#include "window/control/MapView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollArea>

MapKeys::MapKeys(MapView *view)
    : QObject(view)
    , m_view(view)
{
    view->installEventFilter(this);
}

void MapKeys::send(QEvent::Type type, Qt::MouseButton button)
{
    const QPoint spot = m_view->rectOf(m_view->markedCell()).center();
    const bool isUp = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, spot, m_view->mapTo(m_view->window(), spot), m_view->mapToGlobal(spot), button,
                      isUp ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_view, &event);
    m_view->setMarkedCell(m_view->markedCell());
}

void MapKeys::moveBy(const QPoint &step)
{
    m_view->setMarkedCell(m_view->markedCell() + step);
    const QRect cell = m_view->rectOf(m_view->markedCell());
    for (QWidget *above = m_view->parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(above)) {
            area->ensureVisible(cell.center().x(), cell.center().y(), cell.width(), cell.height());
            break;
        }
    }
    if (m_isDown) {
        send(QEvent::MouseMove, Qt::NoButton);
    }
}

void MapKeys::letGo()
{
    if (m_isDown) {
        m_isDown = false;
        send(QEvent::MouseButtonRelease, Qt::LeftButton);
    }
}

bool MapKeys::press(int key, bool isRepeated)
{
    switch (key) {
    case Qt::Key_Left:
        moveBy({-1, 0});
        return true;
    case Qt::Key_Right:
        moveBy({1, 0});
        return true;
    case Qt::Key_Up:
        moveBy({0, -1});
        return true;
    case Qt::Key_Down:
        moveBy({0, 1});
        return true;
    case Qt::Key_Space:
        if (!isRepeated && !m_isDown) {
            m_isDown = true;
            send(QEvent::MouseButtonPress, Qt::LeftButton);
        }
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        send(QEvent::MouseButtonDblClick, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, Qt::LeftButton);
        return true;
    default:
        return false;
    }
}

bool MapKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        letGo();
    }
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) {
        return QObject::eventFilter(watched, event);
    }
    const auto &key = *static_cast<QKeyEvent *>(event);
    const bool isPlain = (key.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier)) == Qt::NoModifier;
    if (event->type() == QEvent::KeyPress) {
        return isPlain && press(key.key(), key.isAutoRepeat());
    }
    if (key.key() == Qt::Key_Space && !key.isAutoRepeat()) {
        letGo();
    }
    return QObject::eventFilter(watched, event);
}
