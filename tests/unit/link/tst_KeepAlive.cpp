#include "Tutorial/link/KeepAlive.h"

#include <QTest>

class tst_KeepAlive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sends_at_every_tenth_tick();
    void lives_for_299_silent_ticks_and_closes_at_the_300th();
    void starts_counting_again_at_any_byte();
};

void tst_KeepAlive::sends_at_every_tenth_tick()
{
    KeepAlive keepAlive;
    for (int tick = 1; tick <= 100; ++tick) {
        const bool isTenth = tick % 10 == 0;
        QCOMPARE(keepAlive.tick() == KeepAlive::Due::kSendAlive, isTenth);
    }
}

void tst_KeepAlive::lives_for_299_silent_ticks_and_closes_at_the_300th()
{
    KeepAlive keepAlive;
    for (int tick = 1; tick <= 299; ++tick) {
        QVERIFY(keepAlive.tick() != KeepAlive::Due::kClose);
    }
    QCOMPARE(keepAlive.tick(), KeepAlive::Due::kClose);
}

void tst_KeepAlive::starts_counting_again_at_any_byte()
{
    KeepAlive keepAlive;
    for (int tick = 1; tick <= 299; ++tick) {
        QVERIFY(keepAlive.tick() != KeepAlive::Due::kClose);
    }
    keepAlive.heard();
    for (int tick = 1; tick <= 299; ++tick) {
        QVERIFY(keepAlive.tick() != KeepAlive::Due::kClose);
    }
    QCOMPARE(keepAlive.tick(), KeepAlive::Due::kClose);
}

QTEST_APPLESS_MAIN(tst_KeepAlive)
#include "tst_KeepAlive.moc"
