#pragma once

#include "Tutorial/overlay/NativeWindowFilter.h"

/// Makes a top-level widget the one member of an X11 window group of its own.
///
/// A window manager may hide the tool windows of a program that is not active, all but the first of each
/// window group; KWin does. The overlays belong to the host editor in the learner's eyes and stay while it is
/// active, so none of them may be a second.
class OwnWindowGroup : public NativeWindowFilter
{
    Q_OBJECT

public:
    using NativeWindowFilter::NativeWindowFilter;

protected:
    void onWindowCreated(QWindow *window) override;
};
