#include "Tutorial/overlay/ClickThrough.h"

#include <QEvent>
#include <QWindow>

void ClickThrough::onWindowEvent(QEvent *event)
{
    if (event->type() == QEvent::Expose && window()->isExposed()) {
        announceInputShape(window());
    }
}

void ClickThrough::announceInputShape(QWindow *window)
{
    window->setFlag(Qt::WindowTransparentForInput, false);
    window->setFlag(Qt::WindowTransparentForInput, true);
}
