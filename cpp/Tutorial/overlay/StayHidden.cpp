#include "Tutorial/overlay/StayHidden.h"

#include <QEvent>
#include <QWindow>

void StayHidden::onWidgetEvent(QEvent *event)
{
    if (event->spontaneous()) {
        return;
    }
    if (event->type() == QEvent::Show) {
        m_mapped = false;
    } else if (event->type() == QEvent::Hide && !m_mapped && window() != nullptr) {
        window()->destroy();
    }
}

void StayHidden::onWindowEvent(QEvent *event)
{
    if (event->type() == QEvent::Expose) {
        m_mapped = m_mapped || window()->isExposed();
    }
}
