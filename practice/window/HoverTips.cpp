#include "window/HoverTips.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>

namespace {

/// From the lower edge of a control to the middle of its tip, in pixels.
constexpr int kBelow = 26;

} // namespace

HoverTips::HoverTips(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

void HoverTips::setShownElsewhere(bool shown)
{
    if (!shown) {
        leave();
    }
    m_shownElsewhere = shown;
}

bool HoverTips::eventFilter(QObject *watched, QEvent *event)
{
    auto *const button = m_shownElsewhere ? qobject_cast<QAbstractButton *>(watched) : nullptr;
    if (button == nullptr || button->toolTip().isEmpty()) {
        return QObject::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::Enter:
        // A click that has opened a dialog is told as another coming of the mouse. Not
        // QWidget::isActiveWindow(): it lends a window the activation of the dialogs that belong to it.
        if (QApplication::activeWindow() != button->window()) {
            break;
        }
        m_hovered = button;
        Q_EMIT hovered(button->toolTip(),
                       button->mapToGlobal(QPoint(button->width() / 2, button->height() + kBelow)));
        break;
    case QEvent::Leave:
    case QEvent::Hide:
    case QEvent::MouseButtonPress:
        if (m_hovered == button) {
            leave();
        }
        break;
    case QEvent::ToolTip:
        return true;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void HoverTips::leave()
{
    if (m_hovered != nullptr) {
        m_hovered = nullptr;
        Q_EMIT unhovered();
    }
}
