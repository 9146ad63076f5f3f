#include "window/WindowPlaces.h"

#include "window/EditorWindow.h"
#include "window/MainFrame.h"
#include "window/OpenPopup.h"
#include "window/WindowBuilder.h"

#include <QApplication>
#include <QScreen>

namespace {

using Kind = WindowDescription::Kind;

/// The place nearest to @p place at which @p size fits into @p screen.
QPoint fitted(const QPoint &place, const QSize &size, const QRect &screen)
{
    const QPoint last = screen.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
    return {qMax(screen.left(), qMin(place.x(), last.x())), qMax(screen.top(), qMin(place.y(), last.y()))};
}

/// Where a dialog of this size has all of its frame in sight, and the lesson strip, too, if there is room.
QRect roomFor(const QSize &size, const QRect &screen, const QRect &strip)
{
    QRect room = screen.marginsRemoved(MainFrame::decoration());
    if (room.width() < size.width() || room.height() < size.height()) {
        return screen;
    }
    const int aboveStrip = strip.top() - MainFrame::decoration().bottom() - 1;
    if (!strip.isEmpty() && aboveStrip - room.top() + 1 >= size.height()) {
        room.setBottom(qMin(room.bottom(), aboveStrip));
    }
    return room;
}

} // namespace

WindowPlaces::WindowPlaces(const DescriptionSet *descriptions, MainFrame *frame, const OpenPopup *popup,
                           const QHash<QString, EditorWindow *> *windows, QObject *parent)
    : QObject(parent)
    , m_descriptions(descriptions)
    , m_frame(frame)
    , m_popup(popup)
    , m_windows(windows)
{
}

QRect WindowPlaces::screen() const
{
    // By its place: its QWindow::screen() follows only after the event that tells of the move.
    const QScreen *const there = QGuiApplication::screenAt(m_frame->geometry().center());
    return (there != nullptr ? there : QApplication::primaryScreen())->geometry();
}

std::optional<QPoint> WindowPlaces::origin(const QString &key) const
{
    if (key == OpenPopup::stackEntry() || key == m_descriptions->popupKey()) {
        return m_popup->window() != nullptr ? std::optional(m_popup->window()->mapToGlobal(QPoint()))
                                            : std::nullopt;
    }
    if (!m_descriptions->contains(key)) {
        return {};
    }
    const WindowDescription &description = (*m_descriptions)[key];
    if (description.kind == Kind::kArea) {
        return m_descriptions->contains(description.owner) ? origin(description.owner) : screen().topLeft();
    }
    const EditorWindow *window = m_windows->value(key);
    return window->isVisible() ? std::optional(window->mapToGlobal(QPoint())) : std::nullopt;
}

void WindowPlaces::place(EditorWindow *window) const
{
    const WindowDescription &description = (*m_descriptions)[window->key()];
    if (!window->isWindow()) {
        const QScreen *const screen = QApplication::primaryScreen();
        m_frame->fit(screen->geometry().topLeft() + description.place, description.size,
                     screen->availableGeometry());
        return;
    }
    const QPoint base = m_windows->value(WindowBuilder::mainKey())->mapToGlobal(QPoint());
    const QRect room = roomFor(description.size, screen(), m_frame->stripOnScreen());
    window->setGeometry(QRect(fitted(base + description.place, description.size, room), description.size));
}

QPoint WindowPlaces::popupCorner(const QPoint &position, const QSize &size) const
{
    // A dialog may stand on another screen than the main window.
    const QScreen *const there = QGuiApplication::screenAt(position);
    return fitted(position, size, there != nullptr ? there->geometry() : screen());
}

void WindowPlaces::tellOrigin(const QString &key)
{
    Q_EMIT moved(key, origin(key).value_or(QPoint()));
}

void WindowPlaces::tellPopup()
{
    tellOrigin(m_descriptions->popupKey());
    tellOrigin(OpenPopup::stackEntry());
}

void WindowPlaces::tell(EditorWindow *window)
{
    const QPoint at = window->mapToGlobal(QPoint());
    const QString &key = window->key();
    const auto told = m_told.constFind(key);
    if (told != m_told.constEnd() && *told == at) {
        return;
    }
    m_told.insert(key, at);
    tellOrigin(key);
    const auto places = window->controlPlaces();
    for (const auto &[name, position] : places) {
        Q_EMIT controlMoved(key + QLatin1Char('_') + name, at + position);
    }
    const QStringList keys = m_descriptions->keys();
    for (const QString &other : keys) {
        const WindowDescription &description = (*m_descriptions)[other];
        if (description.owner != key) {
            continue;
        }
        if (description.kind == Kind::kPart) {
            tell(m_windows->value(other));
        } else {
            tellOrigin(other);
        }
    }
}
