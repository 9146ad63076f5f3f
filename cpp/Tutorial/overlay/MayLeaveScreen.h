#pragma once

#include "Tutorial/overlay/NativeWindowFilter.h"

#include <QPoint>

/// Lets a top-level widget of fixed size reach beyond the screen with all of itself but one pixel.
///
/// KWin and mutter keep a window on the screen whole that stands there whole, and insist; but only with what
/// the window says is seen of it. The overlays are transparent for the most part, and go where their arrow
/// points.
class MayLeaveScreen : public NativeWindowFilter
{
    Q_OBJECT

public:
    /// @p overlay: a top-level widget; it owns the new object. @p pixel: in the widget, the one to stay.
    MayLeaveScreen(QWidget *overlay, const QPoint &pixel);

    /// From now on it is this one. It is cut to the widget.
    void setPixel(const QPoint &pixel);

protected:
    void onWindowCreated(QWindow *window) override;

private:
    QPoint m_pixel;
};
