#include "Tutorial/overlay/OwnWindowGroup.h"

#include "Tutorial/overlay/X11Window.h"

#include <QWindow>

void OwnWindowGroup::onWindowCreated(QWindow *window)
{
    X11Window::setOwnGroup(window->winId());
}
