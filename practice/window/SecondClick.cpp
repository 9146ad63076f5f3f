#include "window/SecondClick.h"

#include "window/EditorWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QPushButton>

namespace {

/// How far apart the two clicks of a double click may be, in pixels.
constexpr int kNear = 6;

/// The property of a button that is for clicking it again and again.
const char *const kRepeats = "repeats";

/// Whether one click is all that this is for.
bool isForOneClick(const QObject *watched)
{
    const auto *const button = qobject_cast<const QAbstractButton *>(watched);
    return button != nullptr && qobject_cast<const EditorWindow *>(button->parentWidget()) != nullptr &&
           !button->property(kRepeats).toBool() &&
           (button->isCheckable() || qobject_cast<const QPushButton *>(button) != nullptr);
}

} // namespace

SecondClick::SecondClick(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

void SecondClick::setRepeats(QPushButton *button, bool repeats)
{
    button->setProperty(kRepeats, repeats);
}

void SecondClick::begin()
{
    if (m_isByMouse) {
        m_place = m_released;
        m_since.start();
    }
}

bool SecondClick::isSecond(const QPoint &screenPosition) const
{
    return m_since.isValid() && m_since.elapsed() < QApplication::doubleClickInterval() &&
           (screenPosition - m_place).manhattanLength() <= kNear;
}

bool SecondClick::isOnFrame() const
{
    return m_isByMouse && isSecond(QCursor::pos());
}

bool SecondClick::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    const bool isRelease = event->type() == QEvent::MouseButtonRelease;
    if (event->type() == QEvent::KeyPress) {
        m_isByMouse = false;
        end();
    }
    if ((!isPress && !isRelease) || !watched->isWidgetType()) {
        return QObject::eventFilter(watched, event);
    }
    const QPoint place = static_cast<QMouseEvent *>(event)->globalPos();
    if (isPress) {
        m_holds = isSecond(place) || (event->type() == QEvent::MouseButtonDblClick && isForOneClick(watched));
        if (!m_holds) {
            end();
        }
    } else {
        m_released = place;
        m_isByMouse = true;
    }
    return m_holds || QObject::eventFilter(watched, event);
}
