#include "make-patch/ProgressLine.h"

#include <cstdio>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

constexpr int kBetweenLinesMs = 200;
constexpr const char *kEraseLine = "\r\033[K";

bool isTerminal()
{
#ifdef Q_OS_UNIX
    return ::isatty(STDERR_FILENO) == 1;
#else
    return false;
#endif
}

} // namespace

ProgressLine::ProgressLine()
    : m_isTerminal(isTerminal())
{
}

ProgressLine::~ProgressLine()
{
    clear();
}

void ProgressLine::show(const QString &file, std::size_t done, std::size_t size)
{
    if (!m_isTerminal || size == 0 || (m_sinceShown.isValid() && !m_sinceShown.hasExpired(kBetweenLinesMs))) {
        return;
    }
    m_sinceShown.start();
    m_isShown = true;
    const QString line = QStringLiteral("make-patch: %1: %2 %").arg(file).arg(done * 100 / size);
    std::fprintf(stderr, "%s%s", kEraseLine, line.toLocal8Bit().constData());
    std::fflush(stderr);
}

void ProgressLine::clear()
{
    if (m_isShown) {
        std::fputs(kEraseLine, stderr);
    }
    m_isShown = false;
}
