#pragma once

#include <QPoint>

namespace player {

/// As the data files count them; 0 is no direction.
enum Direction { kNowhere = 0, kDown = 1, kLeft = 2, kRight = 3, kUp = 4 };

[[nodiscard]] constexpr QPoint stepTo(int direction)
{
    switch (direction) {
    case kDown:
        return {0, 1};
    case kLeft:
        return {-1, 0};
    case kRight:
        return {1, 0};
    case kUp:
        return {0, -1};
    default:
        return {0, 0};
    }
}

[[nodiscard]] constexpr int opposite(int direction)
{
    return direction >= kDown && direction <= kUp ? 5 - direction : kNowhere;
}

/// The direction of a way that goes farther that way than any other; kNowhere for none.
[[nodiscard]] constexpr int directionOf(const QPoint &way)
{
    const int x = way.x() < 0 ? -way.x() : way.x();
    const int y = way.y() < 0 ? -way.y() : way.y();
    if (x == 0 && y == 0) {
        return kNowhere;
    }
    if (x > y) {
        return way.x() < 0 ? kLeft : kRight;
    }
    return way.y() < 0 ? kUp : kDown;
}

} // namespace player
