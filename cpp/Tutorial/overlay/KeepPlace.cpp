#include "Tutorial/overlay/KeepPlace.h"

#include <QEvent>
#include <QWidget>

KeepPlace::KeepPlace(QWidget *overlay)
    : QObject(overlay)
    , m_overlay(overlay)
{
    overlay->installEventFilter(this);
}

bool KeepPlace::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && !event->spontaneous()) {
        m_wanted = m_overlay->pos();
        m_mayAnswer = true;
    } else if (event->type() == QEvent::Move) {
        if (!event->spontaneous()) {
            m_wanted = m_overlay->pos();
        } else if (m_mayAnswer && m_overlay->pos() != m_wanted) {
            m_mayAnswer = false;
            m_overlay->move(m_wanted);
        }
    }
    return QObject::eventFilter(watched, event);
}
