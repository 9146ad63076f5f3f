#pragma once

#include <QtGlobal>

namespace player {

/// A generator whose numbers follow from its seed, on every machine and with every library.
class Random
{
public:
    explicit Random(quint64 seed = 1)
        : m_state(seed)
    {
    }

    /// From @p least to @p greatest, both of them included, in either order.
    int between(int least, int greatest);
    /// True once in so many times; always for 1 and less.
    bool oneIn(int times) { return times <= 1 || between(1, times) == 1; }

    [[nodiscard]] quint64 state() const { return m_state; }

private:
    quint64 next();

    quint64 m_state;
};

} // namespace player
