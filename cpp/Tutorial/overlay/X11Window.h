#pragma once

#include <QMargins>
#include <QtGui/qwindowdefs.h>

/// What Qt has no call for: properties by which an X11 window tells the window manager of itself. They go the
/// way that Qt's own requests go, so they arrive ahead of the mapping of a window that is not shown yet. On
/// other platforms they do nothing.
namespace X11Window {

/// Makes @p window the one member of a window group of its own.
void setOwnGroup(WId window);

/// Declares the outermost pixels of @p window, on each side so many, to be no part of what is seen of it.
void setInvisibleFrame(WId window, const QMargins &margins);

} // namespace X11Window
