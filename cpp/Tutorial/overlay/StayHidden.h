#pragma once

#include "Tutorial/overlay/NativeWindowFilter.h"

/// Sees to it that a top-level widget which is hidden again before it was mapped is never mapped.
///
/// An X11 window manager maps a window some time after it was asked to. One that is asked to withdraw it in
/// between may overlook that: the window stays on the screen although the widget is hidden, and may even take
/// the focus. So the native window goes with the hide in that case; the next show makes a new one.
class StayHidden : public NativeWindowFilter
{
    Q_OBJECT

public:
    using NativeWindowFilter::NativeWindowFilter;

protected:
    void onWidgetEvent(QEvent *event) override;
    void onWindowEvent(QEvent *event) override;

private:
    bool m_mapped = false;
};
