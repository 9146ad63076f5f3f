#pragma once

#include "host/Activity.h"
#include "host/ControlUse.h"
#include "host/EditorState.h"
#include "host/Way.h"
#include "lesson/EditorEvent.h"
#include "lesson/Scenario.h"

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

    /// The entry of openWindows() that has to be on top for a person to use what this key names: the window
    /// of a part, "Popup" for "Menu". Empty where that is no one window.
    [[nodiscard]] virtual QString windowOf(const QString &windowKey) const
    {
        return windowKey == QLatin1String("Menu") ? QStringLiteral("Popup") : windowKey;
    }

    /// The control that has the point, in the pixels of positions in a lesson; with its row, tab or cell.
    /// "Menu" is the open context menu. Nothing where there is none, and from an editor that does not tell:
    /// then only what happens counts, and not where.
    [[nodiscard]] virtual std::optional<ControlSpot> controlAt(const QString &windowKey,
                                                               const QPoint &point) const
    {
        Q_UNUSED(windowKey)
        Q_UNUSED(point)
        return {};
    }

    /// What the step points at. Of several controls that take turns at its place, one that can bring its
    /// condition about. Nothing where it points nowhere.
    [[nodiscard]] virtual std::optional<ControlSpot> controlFor(const Step &step) const
    {
        return step.hasPosition() ? controlAt(step.windowKey, step.spot()) : std::nullopt;
    }

    /// Where it can be used at present, in global screen pixels. Nothing while it is grey or hidden: its
    /// window closed or below another one, its tab behind another one, its row scrolled away, a context menu
    /// over it.
    [[nodiscard]] virtual std::optional<QRect> rectOf(const ControlSpot &spot) const
    {
        Q_UNUSED(spot)
        return {};
    }
    /// The middle of it.
    [[nodiscard]] std::optional<QPoint> spotOf(const ControlSpot &spot) const
    {
        const std::optional<QRect> rect = rectOf(spot);
        return rect ? std::optional(rect->center()) : std::nullopt;
    }
    /// Scrolls it into view, as far as scrolling helps.
    virtual void reveal(const ControlSpot &spot) { Q_UNUSED(spot) }

    /// Whether a person who uses the control brings the condition about with that alone. A field to type into
    /// does not close its window, say.
    [[nodiscard]] virtual bool canCause(const ControlSpot &spot, const Condition &condition) const
    {
        Q_UNUSED(spot)
        Q_UNUSED(condition)
        return true;
    }

    /// Whether each use of the control does the same once more, as a button that adds an entry; of a field
    /// the last value holds. What is used more often than a step asks for has gone wrong.
    [[nodiscard]] virtual bool addsUp(const ControlSpot &spot) const
    {
        Q_UNUSED(spot)
        return false;
    }

    /// Whether the control has what the condition asks for to be chosen in it: a box whose third entry is to
    /// be chosen has three of them. What has not counts as a control that is not there.
    [[nodiscard]] virtual bool offers(const ControlSpot &spot, const Condition &condition) const
    {
        Q_UNUSED(spot)
        Q_UNUSED(condition)
        return true;
    }

    /// What leads where, as far as the editor knows; what is liked better stands first. What is of no use as
    /// things stand, such as a grey entry of the menu that is open, is not among it. A control that closes
    /// its window and drops what was typed there is the best way out of it. The close button of a frame is
    /// one, too: ControlSpot::dismiss().
    [[nodiscard]] virtual Ways ways() const { return {}; }

    /// What a person can begin and end here. viewChanged() tells when one of them begins, ends, moves, or
    /// comes to lie over something.
    [[nodiscard]] virtual QVector<Activity> activities() const { return {}; }

    /// What using the control means just now, in any words that differ when it means something else: the text
    /// of a row; for a map which one it is and with what a person draws; that it is hidden or grey. Empty
    /// while its window is closed, and where that is always the same.
    [[nodiscard]] virtual QString meaningOf(const ControlSpot &spot) const
    {
        Q_UNUSED(spot)
        return {};
    }
    /// What is in front, in the hand or chosen of what a person can switch with one click: tabs, tools, rows.
    [[nodiscard]] virtual QVector<ControlSpot> chosen() const { return {}; }

    /// A word of the step that names something which is not in this editor, such as a window or a command; a
    /// lesson with one is not played. Nothing from an editor that does not tell: such a step then waits for
    /// what never happens.
    [[nodiscard]] virtual std::optional<UnknownWord> unknownWord(const Step &step) const
    {
        Q_UNUSED(step)
        return {};
    }

    /// Which project is open, in any words that differ for another one; empty for none.
    [[nodiscard]] virtual QString projectId() const { return {}; }
    /// Differs when the project's data do, or what was copied to be pasted into them.
    [[nodiscard]] virtual QString dataMark() const { return {}; }
    [[nodiscard]] virtual EditorState state() const { return {}; }
    /// Makes all as it was then, windows included, and tells of them as if a person had opened and closed
    /// them. False when that cannot be done, as for a project that is gone; then as much as can be done is.
    virtual bool restore(const EditorState &state)
    {
        Q_UNUSED(state)
        return false;
    }

    /// Does what a person would, with all that follows from it. False where that cannot be done.
    virtual bool perform(const ControlUse &use)
    {
        Q_UNUSED(use)
        return false;
    }

    /// A short hint for a person who has strayed from @p step: what to do with the control of @p way to get
    /// back. Empty for the hint of the step itself.
    [[nodiscard]] virtual QString hintBack(const Way &way, const Step &step) const
    {
        Q_UNUSED(way)
        Q_UNUSED(step)
        return {};
    }
    /// The same where no control leads back, but LessonSession::putBack() does.
    [[nodiscard]] virtual QString hintToPutBack(const Step &step) const
    {
        Q_UNUSED(step)
        return {};
    }

    /// The middle of what a person clicks for LessonSession::putBack(), in global screen pixels: where no
    /// control leads back, the arrow points there. Nothing while it cannot be used; viewChanged() tells when
    /// it can, or stands elsewhere.
    [[nodiscard]] virtual std::optional<QPoint> spotToPutBack() const { return {}; }

    /// Rectangle of the screen that the editor is on, in global screen pixels. Asked for when a lesson begins
    /// and each time that moved() is emitted: the bubble stays left of its right edge.
    [[nodiscard]] virtual QRect screenRect() const = 0;

    /// Size of the main window's contents.
    [[nodiscard]] virtual QSize applicationSize() const { return screenRect().size(); }

Q_SIGNALS:
    /// Something happened that a condition may wait for.
    void happened(const EditorEvent &event);

    /// A person, or perform(), has used the control, and it did what it is for. Need not be told of a use
    /// that happened() names as its cause.
    void used(const ControlSpot &spot);

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

    /// Something stands elsewhere within its window, as after scrolling, or is there or in front now and was
    /// not.
    void viewChanged();

    /// The mouse rests on something that has a text to tell of it, whose middle is here; and left it.
    void hovered(const QString &text, const QPoint &centre);
    void unhovered();

    /// The editor as a whole became visible (true) or was minimised or hidden (false).
    void visibilityChanged(bool visible);
};
