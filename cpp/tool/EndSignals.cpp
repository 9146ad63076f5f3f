#include "tool/EndSignals.h"

#include <QSocketNotifier>

#ifdef Q_OS_UNIX

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array<int, 3> kSignals{SIGTERM, SIGINT, SIGHUP};

/// The ends of the pipe from the signal handler into the event loop.
int readEnd = -1;
int writeEnd = -1;

std::array<struct sigaction, kSignals.size()> before;

void onSignal(int /*signal*/)
{
    const int error = errno;
    // A full pipe says already what there is to say.
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, "", 1);
    errno = error;
}

bool openPipe()
{
    int ends[2];
    if (::pipe(ends) != 0) {
        return false;
    }
    readEnd = ends[0];
    writeEnd = ends[1];
    for (const int end : ends) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    return true;
}

void listen()
{
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        ::sigaction(kSignals[i], nullptr, &before[i]);
        if (before[i].sa_handler != SIG_IGN) {
            ::sigaction(kSignals[i], &action, nullptr);
        }
    }
}

} // namespace

EndSignals::EndSignals(QObject *parent)
    : QObject(parent)
{
    if (!openPipe()) {
        return;
    }
    auto *notifier = new QSocketNotifier(readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char bytes[64];
        while (::read(readEnd, bytes, sizeof bytes) > 0) {
        }
        Q_EMIT received();
    });
    listen();
}

EndSignals::~EndSignals()
{
    if (readEnd < 0) {
        return;
    }
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        ::sigaction(kSignals[i], &before[i], nullptr);
    }
    qDeleteAll(findChildren<QSocketNotifier *>());
    ::close(readEnd);
    ::close(writeEnd);
    readEnd = -1;
    writeEnd = -1;
}

#else

EndSignals::EndSignals(QObject *parent)
    : QObject(parent)
{
}

EndSignals::~EndSignals() = default;

#endif
