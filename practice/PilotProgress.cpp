#include "PilotProgress.h"

#include <cstdio>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

constexpr int kBarWidth = 30; // characters
constexpr auto kEraseLine = "\r\033[K";

bool isTerminal()
{
#ifdef Q_OS_UNIX
    return ::isatty(STDOUT_FILENO) == 1;
#else
    return false;
#endif
}

void print(const QString &text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::fflush(stdout); // whoever looks on through a pipe sees it now
}

} // namespace

PilotProgress::PilotProgress(const QString &title)
    : m_title(title)
    , m_isTerminal(isTerminal())
{
}

void PilotProgress::showStep(int index, int count, const QString &line)
{
    if (m_steps++ == 0) {
        m_sinceStart.start();
    }
    if (!m_isTerminal) {
        print(line + QLatin1Char('\n'));
        return;
    }
    const int filled = kBarWidth * (index - 1) / count;
    print(QStringLiteral("%1%2 [%3%4] %5/%6")
              .arg(QLatin1String(kEraseLine), m_title, QString(filled, QLatin1Char('#')),
                   QString(kBarWidth - filled, QLatin1Char(' ')))
              .arg(index)
              .arg(count));
}

void PilotProgress::showEnd(bool isWhole)
{
    if (m_isTerminal) {
        print(QLatin1String(kEraseLine));
    }
    if (isWhole) {
        print(QStringLiteral("%1: played to its end, %2 steps in %3 s\n")
                  .arg(m_title)
                  .arg(m_steps)
                  .arg((m_sinceStart.elapsed() + 500) / 1000));
    }
}
