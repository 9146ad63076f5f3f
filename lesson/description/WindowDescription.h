#pragma once

#include "lesson/description/JsonReader.h"

#include <QRect>
#include <QString>
#include <QVector>

/// What a control does when it is used; carried out in the order of the members, empty ones skipped.
struct ControlAction
{
    /// A command of the project, see EditorProject::commands().
    QString run;
    /// Closes the window that the control stands in.
    bool close = false;
    /// Key of the window to open.
    QString open;
    /// Name of the context menu to pop up at the mouse.
    QString popup;

    [[nodiscard]] bool isEmpty() const;
};

/// One control of a window. Geometry is relative to the contents of its window or part, in pixels.
struct ControlDescription
{
    QString type;
    QString name;
    QRect geometry;
    LocalText label;
    /// Text, number or state of the project that the control shows and changes.
    QString field;
    /// Where the rows of a list or the current tab come from.
    QString source;
    QString picture;
    QString icon;
    /// What must be there before the control can be used: empty, or "project".
    QString needs;
    /// Words of the action event; no event when the name is empty.
    QString actionName;
    QString actionState;
    /// Word for a map in its events.
    QString target;
    QString suffix;
    QVector<LocalText> tabs;
    int rowHeight = 0;
    int tabWidth = 0;
    int minimum = 0;
    int maximum = 0;
    bool isDefault = false;
    ControlAction click;
    ControlAction doubleClick;
    ControlAction contextMenu;
};

/// A context menu: all of them share one window key.
struct PopupDescription
{
    QString name;
    QSize size;
    QVector<ControlDescription> controls;
};

/// One window of the editor as its file describes it. The fields are explained beside the files.
struct WindowDescription
{
    enum class Kind { kWindow, kPart, kPopup, kArea };

    QString key;
    Kind kind = Kind::kWindow;
    /// The key of the window that a part belongs to; of the window or "screen" that an area stands for.
    QString owner;
    LocalText title;
    QSize size;
    QPoint place;
    int closesAfterMs = 0;
    ControlAction after;
    QVector<ControlDescription> controls;
    QVector<PopupDescription> popups;

    /// Reads the file at @p path. Adds one line to @p errors for each thing that is wrong with it, naming the
    /// file, the place and the mend; the result is then of no use.
    static WindowDescription read(const QString &path, QStringList *errors);
};
