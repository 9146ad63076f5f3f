#include "Tutorial/overlay/Placement.h"

#include "Tutorial/overlay/BubbleGeometry.h"

#include <cmath>
#include <limits>

namespace {

constexpr int kMirroredShift = 180;
constexpr int kUpsideDownShift = 165;
constexpr double kFlipReach = 256.0;
constexpr int kRightingRow = 65;
constexpr int kRoomToStay = 256;
constexpr int kRoomToReturn = 218;
constexpr int kReturnMargin = 64;
constexpr int kSnap = 2;
constexpr int kNoShift = 56;
constexpr int kReach = 1 << 24; // far beyond any screen

qint64 effectiveX(const Placement &placement, int arrowWidth)
{
    const qint64 x = placement.newX;
    return placement.mirror ? x - kMirroredShift - arrowWidth : x;
}

qint64 effectiveY(const Placement &placement)
{
    const qint64 y = placement.newY;
    return placement.upsideDown ? y + kUpsideDownShift : y;
}

bool isNearTarget(const Placement &placement, int arrowWidth)
{
    const auto dx = static_cast<double>(effectiveX(placement, arrowWidth) - placement.lastX);
    const auto dy = static_cast<double>(effectiveY(placement) - placement.lastY);
    return kFlipReach >= std::sqrt(dx * dx + dy * dy);
}

bool shouldTurnOver(const Placement &placement)
{
    return placement.upsideDown ? placement.newY >= kRightingRow : placement.newY < 0;
}

bool shouldChangeSides(const Placement &placement, qint64 hostRight, int arrowWidth)
{
    const qint64 x = placement.newX;
    return placement.mirror ? x + kRoomToReturn + arrowWidth < hostRight - kReturnMargin
                            : x + kRoomToStay + arrowWidth > hostRight;
}

// Single precision and truncation are part of the movement: approaching from below it rests 3 pixels short.
int ease(qint64 target, int last)
{
    const float position = static_cast<float>(target - last) * 0.25F + static_cast<float>(last);
    const int next = truncateToInt(static_cast<double>(position));
    return std::abs(target - next) <= kSnap ? clampToInt(target) : next;
}

} // namespace

PlacementStep stepPlacement(const Placement &from, qint64 hostRight, int arrowWidth)
{
    Placement placement = from;
    PlacementStep step;
    if (isNearTarget(placement, arrowWidth)) {
        step.turnedOver = shouldTurnOver(placement);
        step.changedSides = shouldChangeSides(placement, hostRight, arrowWidth);
        placement.upsideDown = placement.upsideDown != step.turnedOver;
        placement.mirror = placement.mirror != step.changedSides;
    }
    step.upsideDown = placement.upsideDown;
    step.mirror = placement.mirror;
    step.x = ease(effectiveX(placement, arrowWidth), placement.lastX);
    step.y = ease(effectiveY(placement), placement.lastY);
    return step;
}

ButtonPlaces placeButtons(int x, int y, int hintHeight, int arrowWidth)
{
    const qint64 left = static_cast<qint64>(x) + arrowWidth;
    const int top = clampToInt(static_cast<qint64>(y) + BubbleGeometry::kHintTop + hintHeight);
    return {QPoint(clampToInt(left), top), QPoint(clampToInt(left + kNoShift), top)};
}

QPoint clampToReach(const QPoint &position)
{
    return {qBound(-kReach, position.x(), kReach), qBound(-kReach, position.y(), kReach)};
}

int clampToInt(qint64 value)
{
    return static_cast<int>(
        qBound(qint64(std::numeric_limits<int>::min()), value, qint64(std::numeric_limits<int>::max())));
}

int truncateToInt(double value)
{
    if (std::isnan(value)) {
        return 0;
    }
    return static_cast<int>(
        qBound<double>(std::numeric_limits<int>::min(), value, std::numeric_limits<int>::max()));
}
