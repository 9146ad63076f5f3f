#pragma once

#include <QPoint>
#include <QString>

/// What the indicator is to show: one step of a lesson, as the host editor tells it.
struct IndicatorUpdate
{
    static constexpr int kNoTarget = -9999;
    static constexpr int kNoIcon = 6;

    /// Where the bubble's window goes with its top left, in screen pixels, while it is neither mirrored nor
    /// upside down. With kNoTarget in both coordinates it stays where it was going, without an arrow.
    QPoint target;
    QString windowKey; ///< the host editor's window that the step points into; recorded only
    QString hint;      ///< plain text; an empty one shows none
    bool arrow = false;
    bool next = false;  ///< with the button Next
    bool yesNo = false; ///< with the buttons Yes and No
    /// 0 click, 1 double click, 2 right click, 3 eye, 4 wait, 5 keyboard; anything else is no icon.
    int iconKind = kNoIcon;
};
