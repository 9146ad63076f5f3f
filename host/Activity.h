#pragma once

#include "host/Way.h"

#include <QRect>

/// What a person begins and ends in a window of the editor's that no lesson has a key for, such as a game
/// that is tried out.
struct Activity
{
    /// The condition "action,NAME,open" tells of its beginning, "action,NAME,close" of its end.
    QString action;
    bool isOn = false;
    /// What it lies over, in global screen pixels; empty while it does not, as below another window.
    QRect rect;
    /// What ends it. rectOf() tells where its control is.
    Way end;
};
