#pragma once

#include "lesson/ControlSpot.h"

#include <QVector>

/// What one use of a control does to the windows; a use that does several things is several ways with the
/// same control and the same icon.
struct Way
{
    enum class Does {
        kOpens,
        kCloses,
        kPopsUp,
        /// Brings back what the step is about: a tab to the front, a tool into the hand, a row to be the
        /// chosen one.
        kShows,
    };

    ControlSpot by;
    /// How it is used: "click", "doubleClick" or "rightClick"; "wait" for a window that closes by itself.
    QString icon;
    /// What has to be on top for the control to be used: a window key, or the name of a context menu.
    QString from;
    Does does = Does::kOpens;
    /// Key of the window, or name of the context menu, that it opens, closes or pops up.
    QString windowKey;
    /// It closes a window and drops what was done there, in a window with another control that keeps it.
    bool drops = false;

    /// Whether both are one use of one control.
    [[nodiscard]] bool isSameUse(const Way &other) const { return by == other.by && icon == other.icon; }

    bool operator==(const Way &other) const
    {
        return isSameUse(other) && from == other.from && does == other.does && windowKey == other.windowKey &&
               drops == other.drops;
    }
    bool operator!=(const Way &other) const { return !(*this == other); }
};
using Ways = QVector<Way>;
