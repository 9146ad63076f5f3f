#pragma once

#include "Tutorial/overlay/NativeWindowFilter.h"

/// Makes clicks pass through a top-level widget that carries Qt::WindowTransparentForInput.
///
/// Some X11 window managers copy a window's empty input shape to their frame only when the shape changes
/// after mapping, so the flag alone leaves a frame that eats the clicks. Each time the window becomes
/// exposed, the flag is taken away and given back, which makes Qt announce the shape again.
class ClickThrough : public NativeWindowFilter
{
    Q_OBJECT

public:
    using NativeWindowFilter::NativeWindowFilter;

protected:
    void onWindowEvent(QEvent *event) override;

    /// Announces the empty input shape of @p window anew.
    virtual void announceInputShape(QWindow *window);
};
