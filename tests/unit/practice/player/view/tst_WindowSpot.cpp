#include "player/view/WindowSpot.h"

#include <QtTest>

using namespace player;

namespace {

constexpr QMargins kAround(6, 32, 6, 30);

} // namespace

/// Where the window of a game comes up beside the editor's strip and a lesson's bubble.
class tst_WindowSpot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheMiddleOfAnEmptyScreen();
    void isAsLargeAsThereIsRoom_data();
    void isAsLargeAsThereIsRoom();
    void leavesInSightWhatItCan_data();
    void leavesInSightWhatItCan();
    void hidesLittleWhereThereIsNoRoom();
    void fitsOnTheSmallestScreens();
};

void tst_WindowSpot::takesTheMiddleOfAnEmptyScreen()
{
    const QRect game = WindowSpot({0, 0, 1920, 1080}, {}, {}).game();
    QCOMPARE(game, QRect(320, 180, 1280, 720));
}

void tst_WindowSpot::isAsLargeAsThereIsRoom_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("game");
    QTest::newRow("large") << QSize(1920, 1080) << QSize(1280, 720);
    QTest::newRow("middle") << QSize(1280, 720) << QSize(960, 540);
    QTest::newRow("small") << QSize(800, 600) << QSize(640, 360);
    QTest::newRow("tiny") << QSize(480, 320) << QSize(320, 180);
}

void tst_WindowSpot::isAsLargeAsThereIsRoom()
{
    QFETCH(QSize, screen);
    QFETCH(QSize, game);
    const QRect found = WindowSpot(QRect(QPoint(), screen), {}, kAround).game();
    QCOMPARE(found.size(), game);
    QVERIFY(QRect(QPoint(), screen).contains(found.marginsAdded(kAround)));
}

void tst_WindowSpot::leavesInSightWhatItCan_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QVector<QRect>>("inSight");
    const QRect wide(0, 0, 1920, 1080);
    QTest::newRow("strip below") << wide << QVector<QRect>{{90, 900, 1100, 96}};
    QTest::newRow("strip and bubble") << wide << QVector<QRect>{{90, 900, 1100, 96}, {600, 250, 400, 250}};
    QTest::newRow("bubble in the corner")
        << QRect(0, 0, 1280, 960) << QVector<QRect>{{90, 860, 1100, 96}, {0, 0, 400, 250}};
    QTest::newRow("second screen") << QRect(1920, 0, 1920, 1080) << QVector<QRect>{{2000, 900, 1100, 96}};
}

void tst_WindowSpot::leavesInSightWhatItCan()
{
    QFETCH(QRect, screen);
    QFETCH(QVector<QRect>, inSight);
    const QRect window = WindowSpot(screen, inSight, kAround).game().marginsAdded(kAround);
    QVERIFY(screen.contains(window));
    for (const QRect &rect : qAsConst(inSight)) {
        QVERIFY(!window.intersects(rect));
    }
}

void tst_WindowSpot::hidesLittleWhereThereIsNoRoom()
{
    // The strip lies below, and the bubble in the middle of what is left.
    const QRect screen(0, 0, 1024, 768);
    const QRect strip(0, 672, 1024, 96);
    const QRect window =
        WindowSpot(screen, {strip, {300, 200, 400, 250}}, kAround).game().marginsAdded(kAround);
    QCOMPARE(window.marginsRemoved(kAround).size(), QSize(640, 360));
    QVERIFY(screen.contains(window));
    QVERIFY(!window.intersects(strip));
}

void tst_WindowSpot::fitsOnTheSmallestScreens()
{
    QCOMPARE(WindowSpot({0, 0, 100, 100}, {}, kAround).game().size(), QSize(320, 180));
}

QTEST_GUILESS_MAIN(tst_WindowSpot)
#include "tst_WindowSpot.moc"
