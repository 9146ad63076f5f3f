#include "Tutorial/overlay/ClickThrough.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

ClickThrough::ClickThrough(QWidget *overlay)
    : QObject(overlay)
    , m_overlay(overlay)
{
    overlay->installEventFilter(this);
    watchNativeWindow();
}

bool ClickThrough::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_overlay) {
        if (event->type() == QEvent::WinIdChange || event->type() == QEvent::Show) {
            watchNativeWindow();
        }
    } else if (watched == m_window && event->type() == QEvent::Expose && m_window->isExposed()) {
        announceInputShape(m_window);
    }
    return QObject::eventFilter(watched, event);
}

void ClickThrough::announceInputShape(QWindow *window)
{
    window->setFlag(Qt::WindowTransparentForInput, false);
    window->setFlag(Qt::WindowTransparentForInput, true);
}

void ClickThrough::watchNativeWindow()
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
