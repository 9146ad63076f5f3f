#include "BoundedTries.h"

#include <QElapsedTimer>
#include <QTest>
#include <QThread>

/// The waits of the desktop tests.
class tst_BoundedTries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatNeverComesEndsAtTheLimit();
    void whatComesEndsTheWait();
};

void tst_BoundedTries::whatNeverComesEndsAtTheLimit()
{
    constexpr int kLimitMs = 1000;
    constexpr int kLookMs =
        500; // ten times what lies between two looks: counted in naps it takes over 30 seconds
    int looks = 0;
    const auto slowly = [&looks] {
        ++looks;
        QThread::msleep(kLookMs);
        return false;
    };
    QElapsedTimer clock;
    clock.start();
    QEXPECT_FAIL("", "it never comes", Continue);
    QTRY_VERIFY_WITH_TIMEOUT(slowly(), kLimitMs);
    QVERIFY(clock.elapsed() >= kLimitMs);
    // Two while the limit lasts, and the last one that the message is about.
    QVERIFY2(looks >= 2 && looks <= 3, qPrintable(QString::number(looks)));
}

void tst_BoundedTries::whatComesEndsTheWait()
{
    int looks = 0;
    const auto look = [&looks] {
        return ++looks;
    };
    QTRY_VERIFY_WITH_TIMEOUT(look() >= 3, 60000);
    QCOMPARE(looks, 4); // the last one is the check itself
}

QTEST_GUILESS_MAIN(tst_BoundedTries)
#include "tst_BoundedTries.moc"
