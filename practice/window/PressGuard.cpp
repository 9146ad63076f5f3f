#include "window/PressGuard.h"

#include <QCoreApplication>
#include <QMouseEvent>

PressGuard::PressGuard(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

void PressGuard::begin()
{
    m_since.start();
}

bool PressGuard::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    // What the editor does in a person's place is no press of a person.
    if ((isPress || event->type() == QEvent::MouseButtonRelease) && event->spontaneous()) {
        if (isPress) {
            m_holds = m_since.isValid() && m_since.elapsed() < kMs;
        }
        if (m_holds) {
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
