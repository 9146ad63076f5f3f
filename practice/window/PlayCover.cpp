#include "window/PlayCover.h"

#include <QApplication>
#include <QEvent>

namespace {

QString play()
{
    return QStringLiteral("play");
}

} // namespace

PlayCover::PlayCover(QObject *parent)
    : QObject(parent)
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget * /*old*/, const QWidget *now) { onFocusChanged(now); });
}

void PlayCover::setWindow(QWidget *window, const std::function<std::optional<QRect>()> &leaveRect)
{
    m_window = window;
    m_leaveRect = leaveRect;
    m_isOnTop = true;
    window->installEventFilter(this);
    Q_EMIT changed();
}

Activity PlayCover::activity() const
{
    Activity activity;
    activity.action = play();
    activity.isOn = isOn();
    if (activity.isOn && m_isOnTop && !m_window->isMinimized()) {
        activity.rect = m_window->frameGeometry();
    }
    activity.end = {
        {play(), ControlSpot::dismiss()}, QStringLiteral("click"), play(), Way::Does::kCloses, play(), false};
    return activity;
}

bool PlayCover::isWayOut(const ControlSpot &spot)
{
    return spot.windowKey == play() && spot.control == ControlSpot::dismiss();
}

std::optional<QRect> PlayCover::leaveRect() const
{
    return isOn() && m_leaveRect ? m_leaveRect() : std::nullopt;
}

bool PlayCover::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::WindowActivate:
        setOnTop(true);
        break;
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowStateChange:
        Q_EMIT changed();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void PlayCover::onFocusChanged(const QWidget *now)
{
    if (m_window == nullptr || now == nullptr) {
        return;
    }
    // It stays above the main window, which it belongs to, and changes places with dialogs.
    const QWidget *const window = now->window();
    setOnTop(window == m_window || (m_isOnTop && window == m_window->parentWidget()));
}

void PlayCover::setOnTop(bool isOnTop)
{
    if (std::exchange(m_isOnTop, isOnTop) != isOnTop) {
        Q_EMIT changed();
    }
}
