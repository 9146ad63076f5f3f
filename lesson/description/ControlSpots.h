#pragma once

#include "lesson/ControlSpot.h"
#include "lesson/description/DescriptionSet.h"

#include <optional>

/// From positions in windows to controls and back, in pixels from the top left corner of a window's contents,
/// with lists that are not scrolled and the map at full size.

/// Width and height of a cell of the map.
constexpr int kCellPixels = 32;

/// The controls at @p position in the window, part, area or (all of them, one above the other) context menus
/// with this key, and the row, tab or cell there. Several where controls take turns in one place. Those of a
/// part are known by the part's key. None for a key that is not there, and on the screen.
[[nodiscard]] QVector<ControlSpot> controlsAt(const DescriptionSet &windows, const QString &windowKey,
                                              const QPoint &position);

/// The description of the control; nullptr when there is none. Valid as long as @p windows.
[[nodiscard]] const ControlDescription *controlOf(const DescriptionSet &windows, const ControlSpot &spot);

/// The middle of the control, or of the row, tab or cell in it, in the window or part whose key the spot has;
/// nothing when there is no such control. The part may lie outside of the control.
[[nodiscard]] std::optional<QPoint> pointOf(const DescriptionSet &windows, const ControlSpot &spot);
