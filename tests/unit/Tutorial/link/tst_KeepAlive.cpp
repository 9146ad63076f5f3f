#include "Tutorial/link/KeepAlive.h"

#include <QTest>

class tst_KeepAlive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sendsAtEveryTenthTick();
    void livesFor299SilentTicksAndClosesAtThe300th();
    void startsCountingAgainAtAnyByte();
};

void tst_KeepAlive::sendsAtEveryTenthTick()
{
    KeepAlive keepAlive;
    for (int tick = 1; tick <= 100; ++tick) {
        const bool isTenth = tick % 10 == 0;
        QCOMPARE(keepAlive.tick() == KeepAlive::Due::kSendAlive, isTenth);
    }
}

void tst_KeepAlive::livesFor299SilentTicksAndClosesAtThe300th()
{
    KeepAlive keepAlive;
    for (int tick = 1; tick <= 299; ++tick) {
        QVERIFY(keepAlive.tick() != KeepAlive::Due::kClose);
    }
    QCOMPARE(keepAlive.tick(), KeepAlive::Due::kClose);
}

void tst_KeepAlive::startsCountingAgainAtAnyByte()
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
