#include "pilot/ArrowSpot.h"
#include "pilot/SeenOverlays.h"

#include <QTest>

class tst_PilotSight : public QObject
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

void tst_PilotSight::findsTheSpotOfTheArrow_data()
{
    QTest::addColumn<QPoint>("bubble");
    QTest::addColumn<QPoint>("spot");
    QTest::newRow("upright") << QPoint(400, 300) << QPoint(438, 432);
    QTest::newRow("three short") << QPoint(397, 297) << QPoint(435, 429);
    QTest::newRow("mirrored") << QPoint(400 - 308, 300) << QPoint(438, 432);
    QTest::newRow("upside down") << QPoint(400, 300 + 165) << QPoint(438, 432);
    QTest::newRow("mirrored and upside down") << QPoint(92, 465) << QPoint(438, 432);
}

void tst_PilotSight::findsTheSpotOfTheArrow()
{
    QFETCH(QPoint, bubble);
    const std::optional<QPoint> spot = arrowSpot(bubble, QPoint(400, 300));
    QVERIFY(spot);
    QTEST(*spot, "spot");
}

void tst_PilotSight::knowsABubbleOnItsWay_data()
{
    QTest::addColumn<QPoint>("bubble");
    QTest::newRow("four short") << QPoint(396, 300);
    QTest::newRow("four beyond") << QPoint(400, 304);
    QTest::newRow("far") << QPoint(0, 0);
    QTest::newRow("between upright and upside down") << QPoint(400, 380);
}

void tst_PilotSight::knowsABubbleOnItsWay()
{
    QFETCH(QPoint, bubble);
    QVERIFY(!arrowSpot(bubble, QPoint(400, 300)));
}

void tst_PilotSight::tellsBubbleAndButtonsFromTheRest()
{
    const SeenOverlays::Window no{QRect(456, 200, 64, 32), 1};
    const SeenOverlays::Window bubble{QRect(10, -40, 640, 480), 2};
    const SeenOverlays::Window hidden{QRect(-1, -1, 1, 1), 3};
    const SeenOverlays::Window yes{QRect(400, 200, 64, 32), 4};
    const SeenOverlays seen = SeenOverlays::among({no, bubble, hidden, yes});
    QCOMPARE(*seen.bubble, bubble.rect);
    QCOMPARE(seen.buttons, (QVector<SeenOverlays::Window>{yes, no}));
}

void tst_PilotSight::seesNothingWhereThereIsNothing()
{
    const SeenOverlays seen = SeenOverlays::among({});
    QVERIFY(!seen.bubble);
    QVERIFY(seen.buttons.isEmpty());
    QVERIFY(seen == SeenOverlays());
}

QTEST_APPLESS_MAIN(tst_PilotSight)
#include "tst_PilotSight.moc"
