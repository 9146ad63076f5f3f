#include "Tutorial/overlay/TutorialLog.h"

#include "Tutorial/overlay/OverlayHost.h"
#include "Tutorial/overlay/OverlayWindow.h"

#include <QEvent>

TutorialLog::TutorialLog(QWidget *parent, OverlayHost *manager)
    : QWidget(parent)
    , m_manager(manager)
{
    // Translucent like the others: a window manager that keeps windows on the screen moves the pixel into its
    // corner.
    prepareOverlay(this);
    setGeometry(-1, -1, 1, 1);
    // It is hidden again long before any window manager could activate it.
    show();
    activateWindow();
    hide();
}

void TutorialLog::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::ActivationChange) {
        return;
    }
    if (isTheActiveWindow(this)) {
        m_manager->onOverlayActivated();
    }
    m_manager->updateOverlayVisibility();
}
