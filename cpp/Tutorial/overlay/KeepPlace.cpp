#include "Tutorial/overlay/KeepPlace.h"

#include <QEvent>
#include <QWidget>

KeepPlace::KeepPlace(QWidget *overlay)
    : QObject(overlay)
    , m_overlay(overlay)
    , m_wanted(overlay->pos())
{
    overlay->installEventFilter(this);
}

KeepPlace *KeepPlace::of(const QWidget *widget)
{
    return widget->findChild<KeepPlace *>(QString(), Qt::FindDirectChildrenOnly);
}

void KeepPlace::moveTo(QWidget *overlay, const QPoint &place)
{
    if (KeepPlace *const keeper = of(overlay)) {
        keeper->m_wanted = place;
        keeper->m_answersLeft = kAnswers;
    }
    overlay->move(place);
}

QPoint KeepPlace::placeOf(const QWidget *widget)
{
    const KeepPlace *const keeper = of(widget);
    return keeper != nullptr ? keeper->m_wanted : widget->pos();
}

bool KeepPlace::eventFilter(QObject *watched, QEvent *event)
{
    const bool shown = event->type() == QEvent::Show && !event->spontaneous();
    const bool pushed = event->type() == QEvent::Move && event->spontaneous();
    if (shown) {
        m_answersLeft = kAnswers;
    }
    // On a show the native window is not mapped yet: Qt maps it where the widget is by then.
    if ((shown || (pushed && m_answersLeft > 0)) && m_overlay->pos() != m_wanted) {
        m_answersLeft -= pushed ? 1 : 0;
        m_overlay->move(m_wanted);
    }
    return QObject::eventFilter(watched, event);
}
