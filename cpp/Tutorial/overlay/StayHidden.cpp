#include "Tutorial/overlay/StayHidden.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

StayHidden::StayHidden(QWidget *overlay)
    : QObject(overlay)
    , m_overlay(overlay)
{
    overlay->installEventFilter(this);
}

bool StayHidden::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_window && event->type() == QEvent::Expose) {
        m_mapped = m_mapped || m_window->isExposed();
    } else if (watched == m_overlay && !event->spontaneous()) {
        if (event->type() == QEvent::Show) {
            m_mapped = false;
            watchNativeWindow();
        } else if (event->type() == QEvent::Hide && !m_mapped && m_window != nullptr) {
            m_window->destroy();
        }
    }
    return QObject::eventFilter(watched, event);
}

void StayHidden::watchNativeWindow()
{
    QWindow *const window = m_overlay->windowHandle();
    if (window == m_window) {
        return;
    }
    if (m_window != nullptr) {
        m_window->removeEventFilter(this);
    }
    m_window = window;
    if (window != nullptr) {
        window->installEventFilter(this);
    }
}
