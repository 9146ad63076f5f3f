#pragma once

#include <QPoint>

#include <optional>

/// The spot on the screen at which the arrow of a bubble points, for a bubble whose window is at @p bubble
/// and that was sent to @p target; all in global screen pixels. The bubble may stand mirrored, upside down,
/// both or neither, and may rest up to kRestingShort pixels short of its place; anywhere else it is still on
/// its way: nothing.
[[nodiscard]] std::optional<QPoint> arrowSpot(const QPoint &bubble, const QPoint &target);

/// How far the easing may leave a bubble from its place on each axis, in pixels.
constexpr int kRestingShort = 3;
