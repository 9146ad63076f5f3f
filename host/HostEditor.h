#pragma once

#include "lesson/EditorEvent.h"

#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

/// What a lesson has to know of the editor that plays it: which windows are open, where they are, and what
/// happens in them. The editor implements it once; LessonSession does the rest. All positions are global
/// screen pixels as the windowing system counts them, without any scaling of the toolkit.
class HostEditor : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Keys of the open windows, last on top; an open popup is the key "Popup" on top.
    [[nodiscard]] virtual QStringList openWindows() const = 0;

    /// Top left corner of the window's contents (without frame); the origin of the positions in a lesson.
    /// Nothing for a window that is not open. "ApplicationWindow" is the editor as a whole, and the empty key
    /// the screen.
    [[nodiscard]] virtual std::optional<QPoint> origin(const QString &windowKey) const = 0;

    /// What leads where: keys of the windows in which a person opens the window @p windowKey, with a control
    /// or a context menu there. Empty for a window that opens by itself, and from an editor that does not
    /// tell.
    [[nodiscard]] virtual QStringList openedFrom(const QString &windowKey) const
    {
        Q_UNUSED(windowKey)
        return {};
    }

    /// Rectangle of the whole screen area of the editor.
    [[nodiscard]] virtual QRect screenRect() const = 0;

    /// Size of the main window's contents.
    [[nodiscard]] virtual QSize applicationSize() const { return screenRect().size(); }

Q_SIGNALS:
    /// Something happened that a condition may wait for.
    void happened(const EditorEvent &event);

    /// The window came up, or a popup opened (key "Popup"). Emitted before the matching happened().
    void pushed(const QString &windowKey);

    /// The topmost entry of the stack went away. Emitted before the matching happened().
    void popped(const QString &windowKey);

    /// The popup closed because another program became active. Takes the place of popped(): when that program
    /// is the companion, it has taken "Popup" off its stack by itself, or is about to.
    void popupAbandoned();

    /// The window's origin is now here; also emitted when it opens.
    void moved(const QString &windowKey, const QPoint &origin);

    /// A named control stands here; emitted when its window opens or moves.
    void controlMoved(const QString &controlName, const QPoint &position);

    /// The editor as a whole became visible (true) or was minimised or hidden (false).
    void visibilityChanged(bool visible);
};
