#include "player/game/Screen.h"

#include <cmath>

namespace player {

void Sliding::slideTo(double target, int ticks)
{
    m_target = target;
    m_ticksLeft = qMax(0, ticks);
    if (m_ticksLeft == 0) {
        m_value = target;
    }
}

void Sliding::tick()
{
    if (m_ticksLeft > 0) {
        m_value += (m_target - m_value) / m_ticksLeft;
        --m_ticksLeft;
        if (m_ticksLeft == 0) {
            m_value = m_target;
        }
    }
}

void Picture::tick()
{
    for (Sliding *sliding : {&x, &y, &width, &height, &opacity}) {
        sliding->tick();
    }
}

void Screen::tick()
{
    for (Sliding *sliding : {&red, &green, &blue, &grey, &fade, &flashStrength, &weatherPower}) {
        sliding->tick();
    }
    shakeTicks = qMax(0, shakeTicks - 1);
    for (auto &picture : pictures) {
        picture.tick();
    }
}

QPoint Screen::shake() const
{
    return shakeTicks == 0 ? QPoint()
                           : QPoint(qRound(2 * shakePower * std::sin(shakeTicks * shakeSpeed * 0.3)), 0);
}

} // namespace player
