#include "tool/EndSignals.h"

#include <QtTest>

#include <csignal>

namespace {

constexpr int kLimitMs = 30000;

void someHandler(int /*signal*/) {}

/// What the process does on a signal: a function, SIG_DFL or SIG_IGN.
auto handlerOf(int signal)
{
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    return action.sa_handler;
}

} // namespace

/// Signals that this process sends to itself.
class tst_EndSignals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void eachSignalIsHeard_data();
    void eachSignalIsHeard();
    void isHeardInTheEventLoopOnly();
    void isHeardAgain();
    void ignoredSignalStaysIgnored();
    void leavesTheSignalsAsTheyWere();
};

void tst_EndSignals::init()
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        std::signal(signal, SIG_DFL);
    }
}

void tst_EndSignals::eachSignalIsHeard_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void tst_EndSignals::eachSignalIsHeard()
{
    QFETCH(int, signal);
    const EndSignals endSignals;
    QSignalSpy spy(&endSignals, &EndSignals::received);
    std::raise(signal);
    QTRY_COMPARE_WITH_TIMEOUT(spy.size(), 1, kLimitMs);
}

void tst_EndSignals::isHeardInTheEventLoopOnly()
{
    const EndSignals endSignals;
    QSignalSpy spy(&endSignals, &EndSignals::received);
    // More of them than a pipe holds, and nobody reads it meanwhile.
    for (int i = 0; i < 70000; ++i) {
        std::raise(SIGTERM);
    }
    QCOMPARE(spy.size(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(spy.size(), 1, kLimitMs);
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
}

void tst_EndSignals::isHeardAgain()
{
    const EndSignals endSignals;
    QSignalSpy spy(&endSignals, &EndSignals::received);
    for (int round = 1; round <= 3; ++round) {
        std::raise(SIGINT);
        QTRY_COMPARE_WITH_TIMEOUT(spy.size(), round, kLimitMs);
    }
}

void tst_EndSignals::ignoredSignalStaysIgnored()
{
    std::signal(SIGHUP, SIG_IGN);
    const EndSignals endSignals;
    QVERIFY(handlerOf(SIGHUP) == SIG_IGN);
    QSignalSpy spy(&endSignals, &EndSignals::received);
    std::raise(SIGHUP);
    std::raise(SIGTERM); // behind it, so that there is something to wait for
    QTRY_COMPARE_WITH_TIMEOUT(spy.size(), 1, kLimitMs);
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
}

void tst_EndSignals::leavesTheSignalsAsTheyWere()
{
    std::signal(SIGINT, someHandler);
    std::signal(SIGHUP, SIG_IGN);
    {
        const EndSignals endSignals;
        QVERIFY(handlerOf(SIGINT) != someHandler);
    }
    QVERIFY(handlerOf(SIGTERM) == SIG_DFL);
    QVERIFY(handlerOf(SIGINT) == someHandler);
    QVERIFY(handlerOf(SIGHUP) == SIG_IGN);
}

QTEST_GUILESS_MAIN(tst_EndSignals)
#include "tst_EndSignals.moc"
