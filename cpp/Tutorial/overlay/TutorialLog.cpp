#include "Tutorial/overlay/TutorialLog.h"

#include "Tutorial/overlay/OverlayHost.h"

#include <QApplication>
#include <QEvent>

TutorialLog::TutorialLog(QWidget *parent, OverlayHost *manager)
    : QWidget(parent)
    , m_manager(manager)
{
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setGeometry(-1, -1, 1, 1);
    show();
    activateWindow();
    hide();
    // An X11 window manager answers later than this: it would still activate the window, and Qt would go on
    // believing that the program is active, or take the focus from the host editor when the window is shown
    // next. A native window that is gone gets no such answer; the next show makes a new one.
    destroy();
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
