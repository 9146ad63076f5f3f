#include "Tutorial/overlay/Bounce.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float kReach = 16.0F;
constexpr float kUpsideDownRise = 6.0F;
constexpr float kRadiansPerDegree = 0.017453292F;

} // namespace

float bounceOffset(qint64 elapsedMs)
{
    const float angle = static_cast<float>(elapsedMs) / 1000.0F * 0.5F * 360.0F * kRadiansPerDegree;
    const double sine = std::sin(static_cast<double>(angle));
    return std::min(static_cast<float>(sine * 16.0 + 16.0), kReach);
}

float upsideDownBounceOffset(qint64 elapsedMs)
{
    return bounceOffset(elapsedMs) - kUpsideDownRise;
}
