#pragma once

#include "lesson/description/ControlRequirement.h"
#include "lesson/description/JsonReader.h"
#include "lesson/description/MenuDescription.h"

#include <QRect>
#include <QString>
#include <QVector>

#include <memory>

/// What a control does when it is used; carried out in the order of the members, empty ones skipped.
struct ControlAction
{
    /// Commands of the editor, one after the other: the name of each, with its argument behind a blank.
    QStringList run;
    /// Closes the window that the control stands in.
    bool close = false;
    /// Key of the window to open.
    QString open;
    /// Commands of the editor, run in the window that was opened.
    QStringList begin;
    /// Name of the context menu to pop up at the mouse.
    QString popup;
    /// What a command adds to a list; undefined where nothing is said of it.
    QJsonValue entry = QJsonValue::Undefined;
    /// What has to hold for it. Where it does not, what stands in @c otherwise happens instead, if anything.
    QVector<ControlRequirement> when{};
    std::shared_ptr<const ControlAction> otherwise{};

    [[nodiscard]] bool isEmpty() const;
};

/// How a control or a part follows when its window is made larger or smaller than its description says.
/// Without any of these it keeps place and size.
struct Stretch
{
    bool right = false;
    bool down = false;
    /// Keeps its distance from the lower edge.
    bool isAtBottom = false;

    /// Where @p described goes when the window has grown by @p growth, in pixels.
    [[nodiscard]] QRect apply(const QRect &described, const QSize &growth) const;
};

/// One control of a window: what a lesson has to know of it. Geometry is relative to the contents of its
/// window or part, in pixels.
struct ControlDescription
{
    QString type;
    QString name;
    QRect geometry;
    Stretch stretch;
    LocalText label;
    /// Words of the action event; no event when the name is empty.
    QString actionName;
    QString actionState;
    /// What the action opens is no window of the editor's: when it is over, the action's state is "close".
    bool actionEnds = false;
    /// Of a list; 0 for other controls.
    int rowHeight = 0;
    /// Of a row of tabs: that of each tab, or one for all of them. Empty for other controls.
    QVector<int> tabWidths;
    ControlAction click;
    ControlAction doubleClick;
    ControlAction contextMenu;
    /// What the keys for deleting, copying and pasting do in a list.
    ControlAction deleteKey;
    ControlAction copyKey;
    ControlAction pasteKey;
    /// The control is there while all of these hold, and of use while all of those do.
    QVector<ControlRequirement> shownWhen;
    QVector<ControlRequirement> enabledWhen;
    /// The fields that only controls of its type have; who makes the controls reads them.
    JsonPlace own;

    /// What a click on a map or on one of its cells is reported of; empty for other controls.
    [[nodiscard]] QString target() const;

    /// Where tab number @p tab begins, from the left of the row, and how wide it is. Tabs behind the last one
    /// are as wide as that.
    [[nodiscard]] int tabLeft(int tab) const;
    [[nodiscard]] int tabWidth(int tab) const;
    /// The tab at @p x from the left of the row, or, behind the last one, the tab that would be there.
    [[nodiscard]] int tabAt(int x) const;

    /// Whether @p word is what events and conditions call it: its name, without the code of the command that
    /// a form's controls have ahead.
    [[nodiscard]] bool isCalled(const QString &word) const;

    /// All that it does, by the field that says so, with what it does otherwise.
    [[nodiscard]] QVector<QPair<QString, ControlAction>> actions() const;

    /// Reads the list "controls" of @p parent; each has to stand inside of @p size.
    static QVector<ControlDescription> readAll(JsonReader &parent, const QSize &size);
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
    /// Of a window that is called after what it is opened for: the field whose text stands in the title, in
    /// place of the %1 of this text. While there is none it is @c title.
    QString titleField;
    LocalText titleText;
    QSize size;
    /// Of a window that the person can resize; empty for all others.
    QSize minimumSize;
    QPoint place;
    /// Of a part.
    Stretch stretch;
    /// What is changed in the window is dropped when it closes, unless a command accepts it.
    bool isDraft = false;
    int closesAfterMs = 0;
    ControlAction after;
    QVector<ControlDescription> controls;
    QVector<PopupDescription> popups;
    QVector<MenuDescription> menus;

    /// Reads the file at @p path. Adds one line to @p errors for each thing that is wrong with it, naming the
    /// file, the place and the mend; the result is then of no use.
    static WindowDescription read(const QString &path, QStringList *errors);
};
