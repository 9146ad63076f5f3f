#include "Tutorial/overlay/Bounce.h"

#include <QtTest>

#include <limits>

class tst_Bounce : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offsetsAtTheirTimes_data();
    void offsetsAtTheirTimes();
    void staysInItsRange();
};

void tst_Bounce::offsetsAtTheirTimes_data()
{
    QTest::addColumn<qint64>("elapsedMs");
    QTest::addColumn<int>("upright");
    QTest::addColumn<int>("upsideDown");
    QTest::newRow("start") << qint64(0) << 16 << 10;
    QTest::newRow("first half") << qint64(500) << 16 << 10;
    QTest::newRow("a sixth below the middle") << qint64(1167) << 7 << 1; // sine -0.5009: 7.99
    QTest::newRow("lowest") << qint64(1500) << 0 << -6;
    QTest::newRow("truncated toward zero on both sides") << qint64(1400) << 0 << -5; // 0.78 and -5.22
    QTest::newRow("next period") << qint64(2500) << 16 << 10;
    QTest::newRow("lowest again") << qint64(3500) << 0 << -6;
}

void tst_Bounce::offsetsAtTheirTimes()
{
    QFETCH(qint64, elapsedMs);
    QTEST(static_cast<int>(bounceOffset(elapsedMs)), "upright");
    QTEST(static_cast<int>(upsideDownBounceOffset(elapsedMs)), "upsideDown");
}

void tst_Bounce::staysInItsRange()
{
    for (qint64 elapsedMs = 0; elapsedMs < 10000; elapsedMs += 7) {
        const float offset = bounceOffset(elapsedMs);
        QVERIFY(offset >= 0.0F && offset <= 16.0F);
        if (elapsedMs % 2000 < 1000) {
            QVERIFY2(offset > 15.99F, qPrintable(QString::number(elapsedMs)));
        }
    }
    const float late = bounceOffset(std::numeric_limits<qint64>::max());
    QVERIFY(late >= 0.0F && late <= 16.0F);
}

QTEST_APPLESS_MAIN(tst_Bounce)
#include "tst_Bounce.moc"
