#include "pilot/OverlayWatch.h"
#include "pilot/Placement.h"

#include <QTest>

class TestPilotSight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheSpotOfTheArrow_data();
    void findsTheSpotOfTheArrow();
    void knowsABubbleOnItsWay_data();
    void knowsABubbleOnItsWay();
    void tellsBubbleAndButtonsFromTheRest();
    void seesNothingWhereThereIsNothing();
};

void TestPilotSight::findsTheSpotOfTheArrow_data()
{
    QTest::addColumn<QPoint>("bubble");
    QTest::addColumn<QPoint>("spot");
    QTest::newRow("upright") << QPoint(400, 300) << QPoint(438, 450);
    QTest::newRow("three short") << QPoint(397, 297) << QPoint(435, 447);
    QTest::newRow("mirrored") << QPoint(400 - 308, 300) << QPoint(438, 450);
    QTest::newRow("upside down") << QPoint(400, 300 + 165) << QPoint(438, 450);
    QTest::newRow("mirrored and upside down") << QPoint(92, 465) << QPoint(438, 450);
}

void TestPilotSight::findsTheSpotOfTheArrow()
{
    QFETCH(QPoint, bubble);
    const std::optional<QPoint> spot = arrowSpot(bubble, QPoint(400, 300));
    QVERIFY(spot);
    QTEST(*spot, "spot");
}

void TestPilotSight::knowsABubbleOnItsWay_data()
{
    QTest::addColumn<QPoint>("bubble");
    QTest::newRow("four short") << QPoint(396, 300);
    QTest::newRow("four beyond") << QPoint(400, 304);
    QTest::newRow("far") << QPoint(0, 0);
    QTest::newRow("between upright and upside down") << QPoint(400, 380);
}

void TestPilotSight::knowsABubbleOnItsWay()
{
    QFETCH(QPoint, bubble);
    QVERIFY(!arrowSpot(bubble, QPoint(400, 300)));
}

void TestPilotSight::tellsBubbleAndButtonsFromTheRest()
{
    const OverlayWatch seen = OverlayWatch::parse("WINDOW=1\nX=456\nY=200\nWIDTH=64\nHEIGHT=32\nSCREEN=0\n"
                                                  "WINDOW=2\nX=10\nY=-40\nWIDTH=640\nHEIGHT=480\nSCREEN=0\n"
                                                  "WINDOW=3\nX=-1\nY=-1\nWIDTH=1\nHEIGHT=1\nSCREEN=0\n"
                                                  "WINDOW=4\nX=400\nY=200\nWIDTH=64\nHEIGHT=32\nSCREEN=0\n");
    QCOMPARE(*seen.bubble, QRect(10, -40, 640, 480));
    QCOMPARE(seen.buttons,
             (QVector<OverlayWatch::Button>{{QRect(400, 200, 64, 32), 4}, {QRect(456, 200, 64, 32), 1}}));
}

void TestPilotSight::seesNothingWhereThereIsNothing()
{
    const OverlayWatch seen = OverlayWatch::parse(QByteArray());
    QVERIFY(!seen.bubble);
    QVERIFY(seen.buttons.isEmpty());
    QVERIFY(seen == OverlayWatch());
}

QTEST_APPLESS_MAIN(TestPilotSight)
#include "tst_PilotSight.moc"
