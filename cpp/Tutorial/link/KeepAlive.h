#pragma once

/// Counts, in ticks of 100 ms, how long the host editor has been silent and when it is to hear from us.
class KeepAlive
{
public:
    static constexpr int kSilenceLimit = 300;
    static constexpr int kSendInterval = 10;

    /// What a tick asks for.
    enum class Due { kNothing, kSendAlive, kClose };

    /// Bytes of any kind arrived.
    void heard() { m_silentTicks = 0; }

    /// One tick. Once the limit is reached every further tick asks to close.
    [[nodiscard]] Due tick()
    {
        if (++m_silentTicks >= kSilenceLimit) {
            m_silentTicks = kSilenceLimit;
            return Due::kClose;
        }
        if (++m_ticksSinceSend >= kSendInterval) {
            m_ticksSinceSend = 0;
            return Due::kSendAlive;
        }
        return Due::kNothing;
    }

private:
    int m_silentTicks = 0;
    int m_ticksSinceSend = 0;
};
