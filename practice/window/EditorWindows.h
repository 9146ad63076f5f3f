#pragma once

#include "runner/EditorEvent.h"

#include <QMap>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>

/// What the rest of the practice editor knows of its windows: who is open, where, and what happens in them.
/// The windows themselves are built from descriptions; nothing outside this folder sees a widget.
class EditorWindows : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Opens the window with this key, or raises it when it is open. False when no description has the key.
    virtual bool open(const QString &windowKey) = 0;

    /// Closes the window if it is open.
    virtual void close(const QString &windowKey) = 0;

    /// Keys of the open windows, last on top; an open popup is the key "Popup" on top.
    [[nodiscard]] virtual QStringList openWindows() const = 0;

    /// Top left corner of the window's contents (without frame) in global screen pixels; the origin of the
    /// positions in a scenario. (0, 0) for a window that is not open.
    [[nodiscard]] virtual QPoint origin(const QString &windowKey) const = 0;

    /// How the window is called in the person's language; empty when no description has the key, or no title.
    [[nodiscard]] virtual QString title(const QString &windowKey) const = 0;

    /// Rectangle of the whole screen area of the editor in global screen pixels.
    [[nodiscard]] virtual QRect screenRect() const = 0;

    /// Size of the main window's contents in pixels.
    [[nodiscard]] virtual QSize applicationSize() const { return screenRect().size(); }

    /// Offers @p folder as the place of a new project.
    virtual void setProjectsFolder(const QString &folder) = 0;

    /// Shows the data files, path inside the project to text, as the contents of the open project; does
    /// nothing while none is open.
    virtual void showProject(const QMap<QString, QString> &files) = 0;

Q_SIGNALS:
    /// The person has made a new project; its folder is @p name inside of @p location.
    void projectCreated(const QString &location, const QString &name);

    /// Something happened that a condition may wait for.
    void happened(const EditorEvent &event);

    /// The window came up, or a popup opened (key "Popup"). Emitted before the matching happened().
    void pushed(const QString &windowKey);

    /// The topmost entry of the stack went away. Emitted before the matching happened().
    void popped(const QString &windowKey);

    /// The popup closed because another program became active. Takes the place of popped(): when that program
    /// is the companion, it has taken "Popup" off its stack by itself, or is about to.
    void popupAbandoned();

    /// The window's origin is now here (global screen pixels); also emitted when it opens.
    void moved(const QString &windowKey, const QPoint &origin);

    /// A named control stands here (global screen pixels); emitted when its window opens or moves.
    void controlMoved(const QString &controlName, const QPoint &position);

    /// The editor as a whole became visible (true) or was minimised or hidden (false).
    void visibilityChanged(bool visible);

    /// The person closed the main window: the editor is to end.
    void mainWindowClosed();
};
