#include "player/game/Random.h"

namespace player {

quint64 Random::next()
{
    // A step of a Weyl sequence, and its bits well mixed.
    m_state += Q_UINT64_C(0x9E3779B97F4A7C15);
    quint64 bits = m_state;
    bits = (bits ^ (bits >> 30U)) * Q_UINT64_C(0xBF58476D1CE4E5B9);
    bits = (bits ^ (bits >> 27U)) * Q_UINT64_C(0x94D049BB133111EB);
    return bits ^ (bits >> 31U);
}

int Random::between(int least, int greatest)
{
    const qint64 from = qMin(least, greatest);
    const quint64 count = quint64(qint64(qMax(least, greatest)) - from) + 1;
    return int(from + qint64(next() % count));
}

} // namespace player
