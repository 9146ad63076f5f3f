#include "Tutorial/overlay/TutorialLog.h"

#include "Tutorial/overlay/OverlayHost.h"
#include "Tutorial/overlay/StayHidden.h"

#include <QApplication>
#include <QEvent>

TutorialLog::TutorialLog(QWidget *parent, OverlayHost *manager)
    : QWidget(parent)
    , m_manager(manager)
{
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    // A window manager that keeps windows on the screen moves the pixel into its corner.
    setAttribute(Qt::WA_TranslucentBackground);
    setGeometry(-1, -1, 1, 1);
    // From here on: the window is hidden again long before any window manager could activate it.
    new StayHidden(this);
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
    // Not isActiveWindow(): that lends every parentless tool window the state "active".
    if (QApplication::activeWindow() == this) {
        m_manager->onOverlayActivated();
    }
    m_manager->updateOverlayVisibility();
}
