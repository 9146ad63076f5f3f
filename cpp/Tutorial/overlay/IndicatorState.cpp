#include "Tutorial/overlay/IndicatorState.h"

namespace {

// Characters. More than any screen shows of a hint, and few enough to be laid out without holding up the
// event loop, as a hint of megabytes would for minutes.
constexpr int kLongestHint = 8000;

} // namespace

void IndicatorState::setTarget(const QPoint &target, const QString &key, bool arrow)
{
    windowKey = key;
    offsetX = target.x();
    offsetY = target.y();
    if (target == QPoint(IndicatorUpdate::kNoTarget, IndicatorUpdate::kNoTarget)) {
        arrowVisible = false;
        return;
    }
    placement.newX = target.x();
    placement.newY = target.y();
    arrowVisible = arrow;
}

void IndicatorState::setHint(const QString &text)
{
    hint = text.left(kLongestHint);
}

PlacementStep IndicatorState::turn(qint64 hostRight, int arrowWidth)
{
    const PlacementStep step = stepPlacement(placement, hostRight, arrowWidth);
    placement.upsideDown = step.upsideDown;
    placement.mirror = step.mirror;
    repaintAll = repaintAll || step.turnedOver || step.changedSides;
    return step;
}

bool IndicatorState::moveTo(const QPoint &place, bool measured)
{
    // One row off on purpose: so a window at rest counts as moved. It also cancels a step of one row down.
    const qint64 lastY = static_cast<qint64>(placement.lastY) + (measured ? 1 : 0);
    const bool moves = place.x() != placement.lastX || place.y() != lastY;
    placement.lastX = place.x();
    placement.lastY = place.y();
    return moves;
}

ButtonPlaces IndicatorState::buttonPlaces(int arrowWidth) const
{
    return placeButtons(placement.lastX, placement.lastY, hintHeight, arrowWidth);
}
