#include "Tutorial/overlay/NativeWindowFilter.h"

#include <QPlatformSurfaceEvent>
#include <QWidget>
#include <QWindow>

NativeWindowFilter::NativeWindowFilter(QWidget *overlay)
    : QObject(overlay)
    , m_overlay(overlay)
{
    overlay->installEventFilter(this);
    watchNativeWindow();
}

namespace {

bool tellsOfNewSurface(const QEvent *event)
{
    return event->type() == QEvent::PlatformSurface &&
           static_cast<const QPlatformSurfaceEvent *>(event)->surfaceEventType() ==
               QPlatformSurfaceEvent::SurfaceCreated;
}

} // namespace

bool NativeWindowFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_overlay) {
        if (event->type() == QEvent::WinIdChange || event->type() == QEvent::Show) {
            watchNativeWindow();
        }
        // The first window is made before anyone can listen to it; without a handle there is none.
        if (event->type() == QEvent::WinIdChange && m_window != nullptr && m_window->handle() != nullptr) {
            onWindowCreated(m_window);
        }
        onWidgetEvent(event);
    } else if (watched == m_window) {
        if (tellsOfNewSurface(event)) {
            onWindowCreated(m_window);
        }
        onWindowEvent(event);
    }
    return QObject::eventFilter(watched, event);
}

void NativeWindowFilter::onWidgetEvent(QEvent *event)
{
    Q_UNUSED(event)
}

void NativeWindowFilter::onWindowEvent(QEvent *event)
{
    Q_UNUSED(event)
}

void NativeWindowFilter::onWindowCreated(QWindow *window)
{
    Q_UNUSED(window)
}

QWindow *NativeWindowFilter::window() const
{
    return m_window;
}

void NativeWindowFilter::watchNativeWindow()
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
