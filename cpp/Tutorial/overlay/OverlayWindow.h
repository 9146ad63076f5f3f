#pragma once

#include <Qt>

class QWidget;

/// Makes a top-level widget one of the windows above the host editor's: a tool window without a frame, on top
/// of all others, translucent, that is shown without taking the focus, and with the cures that such a window
/// needs. To be called once, before the widget has a native window.
/// @p more: flags that this one has besides. Qt::WindowTransparentForInput lets clicks pass through it.
void prepareOverlay(QWidget *overlay, Qt::WindowFlags more = {});
