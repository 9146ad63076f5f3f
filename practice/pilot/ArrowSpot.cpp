#include "pilot/ArrowSpot.h"

#include "lesson/Scenario.h"

namespace {

// From a bubble that is mirrored or turned over to where it would stand upright and unmirrored.
constexpr int kMirroredLeft = 308;
constexpr int kUpsideDownBelow = 165;

bool isClose(const QPoint &a, const QPoint &b)
{
    return qAbs(a.x() - b.x()) <= kRestingShort && qAbs(a.y() - b.y()) <= kRestingShort;
}

} // namespace

std::optional<QPoint> arrowSpot(const QPoint &bubble, const QPoint &target)
{
    for (const int left : {0, kMirroredLeft}) {
        for (const int below : {0, kUpsideDownBelow}) {
            const QPoint upright = bubble + QPoint(left, -below);
            if (isClose(upright, target)) {
                return upright + LessonWords::kTip;
            }
        }
    }
    return {};
}
