#include "Tutorial/overlay/OverlayWindow.h"

#include "Tutorial/overlay/ClickThrough.h"
#include "Tutorial/overlay/OwnWindowGroup.h"
#include "Tutorial/overlay/StayHidden.h"

#include <QWidget>

void prepareOverlay(QWidget *overlay, Qt::WindowFlags more)
{
    overlay->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | more);
    overlay->setAttribute(Qt::WA_TranslucentBackground);
    overlay->setAttribute(Qt::WA_ShowWithoutActivating);
    new OwnWindowGroup(overlay);
    new StayHidden(overlay);
    if (more.testFlag(Qt::WindowTransparentForInput)) {
        new ClickThrough(overlay);
    }
}
