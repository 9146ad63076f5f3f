#include "Tutorial/overlay/MayLeaveScreen.h"

#include "Tutorial/overlay/X11Window.h"

#include <QWidget>
#include <QWindow>

MayLeaveScreen::MayLeaveScreen(QWidget *overlay, const QPoint &pixel)
    : NativeWindowFilter(overlay)
    , m_pixel(pixel)
{
}

void MayLeaveScreen::setPixel(const QPoint &pixel)
{
    m_pixel = pixel;
    if (window() != nullptr && window()->handle() != nullptr) {
        onWindowCreated(window());
    }
}

void MayLeaveScreen::onWindowCreated(QWindow *window)
{
    const QSize size = overlay()->size();
    const int x = qBound(0, m_pixel.x(), size.width() - 1);
    const int y = qBound(0, m_pixel.y(), size.height() - 1);
    X11Window::setInvisibleFrame(window->winId(), {x, y, size.width() - 1 - x, size.height() - 1 - y});
}
