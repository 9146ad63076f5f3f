#pragma once

#include "lesson/ControlSpot.h"

struct Step;
struct Way;

/// One use of a control, as the icons of lessons tell it.
struct ControlUse
{
    enum class Kind {
        kClick,
        /// Choose the row that the hint in the text quotes, where the control is a list to choose from that
        /// unfolds; click any other.
        kClickQuoted,
        kDoubleClick,
        kRightClick,
        /// Press there, go some way to the right and down, let go.
        kDrag,
        /// Click there and type the text in place of what stands there; then press Enter if the step ends
        /// with something else than the text.
        kType,
        /// Choose the entry with the number in the text.
        kChoose,
        /// End what an action has begun beside the editor's windows: the game that is tried out, say. The
        /// action stands in the text.
        kEnd,
    };

    /// Without a control for what needs none: to type is then into what has the keyboard.
    ControlSpot spot;
    Kind kind = Kind::kClick;
    /// Of kClickQuoted, kType and kChoose; empty leaves what stands there.
    QString text;
    bool pressesEnter = false;
    /// How often it is done, one after the other.
    int times = 1;

    /// What a person does for the step at @p spot, which has no control for a step that points at none.
    static ControlUse of(const Step &step, const ControlSpot &spot);
    static ControlUse of(const Way &way);
    /// Leaves the context menu that is open.
    static ControlUse closingMenu();
};
