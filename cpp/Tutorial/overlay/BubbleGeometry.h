#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// Sizes and places inside the bubble's window, in its pixels. The hint has the arrow on its left, mirrored
/// on its right, and the action icon above it on the side of the arrow.
namespace BubbleGeometry {

inline constexpr QSize kWindow{640, 480};

/// How wide a hint's text edit is; its text wraps at that width less twice the margin.
inline constexpr int kHintWidth = 256;

/// Room around the text of a hint inside of its text edit. The shadow of the panel lies in it.
inline constexpr int kHintMargin = 12;

/// Where a hint's text edit begins.
inline constexpr int kHintTop = 56;

/// How high a hint's text edit is before a text was measured, and how high it can be.
inline constexpr int kFirstHintHeight = 64;
inline constexpr int kMostHintHeight = kWindow.height() - kHintTop;

/// The square that holds any icon.
inline constexpr int kIconSide = 56;

/// How far the arrow hops.
inline constexpr int kBounceRoom = 16;

[[nodiscard]] constexpr QPoint hintPlace(bool mirror, int arrowWidth)
{
    return {mirror ? 0 : arrowWidth, kHintTop};
}

/// Where the arrow may be at any moment of its bounce.
[[nodiscard]] constexpr QRect arrowRect(bool mirror, const QSize &arrow)
{
    return {mirror ? kHintWidth : 0, 0, arrow.width(), arrow.height() + kBounceRoom};
}

/// Where any icon is.
[[nodiscard]] constexpr QRect iconRect(bool mirror, int arrowWidth)
{
    return {mirror ? kHintWidth - kIconSide : arrowWidth, 0, kIconSide, kIconSide};
}

/// The top left of an icon, which stands against the arrow.
[[nodiscard]] constexpr QPoint iconPlace(bool mirror, int arrowWidth, int iconWidth)
{
    return {mirror ? kHintWidth - iconWidth : arrowWidth, 0};
}

/// What a tick repaints while the window keeps its side. Mirrored, the icon is not in it.
[[nodiscard]] constexpr QRect tickRect(bool mirror, const QSize &arrow)
{
    return {mirror ? kHintWidth : 0, 0, arrow.width() + kIconSide, arrow.height() + kBounceRoom + kIconSide};
}

} // namespace BubbleGeometry
