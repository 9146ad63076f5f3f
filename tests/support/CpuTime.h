#pragma once

#include <QtGlobal>

#include <ctime>

/// Processor time of this process since construction, to hold work to a limit: what other processes do in the
/// meantime does not count, nor does a machine that stands still.
class CpuTime
{
public:
    [[nodiscard]] qint64 elapsedMs() const { return qint64(std::clock() - m_start) * 1000 / CLOCKS_PER_SEC; }

private:
    std::clock_t m_start = std::clock();
};
