#include "Tutorial/overlay/Placement.h"

#include <QtTest>

#include <limits>

namespace {

constexpr int kArrow = 128;
constexpr qint64 kRight = 1920;
constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

// At rest at (x, y), so that only the flips are in question.
Placement atRest(int x, int y, bool upsideDown, bool mirror)
{
    Placement placement;
    placement.newX = x;
    placement.newY = y;
    placement.lastX = mirror ? x - 180 - kArrow : x;
    placement.lastY = upsideDown ? y + 165 : y;
    placement.upsideDown = upsideDown;
    placement.mirror = mirror;
    return placement;
}

} // namespace

class tst_Placement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void turnsOverByRow_data();
    void turnsOverByRow();
    void changesSidesByColumn_data();
    void changesSidesByColumn();
    void flipsOnlyWithinReach_data();
    void flipsOnlyWithinReach();
    void measuresTheReachToTheShiftedTarget();
    void easesAQuarterOfTheWay_data();
    void easesAQuarterOfTheWay();
    void comesToRest_data();
    void comesToRest();
    void headsForTheShiftedTargetOnTheTickOfTheFlip();
    void flipsOncePerTarget();
    void copesWithAnyCoordinates_data();
    void copesWithAnyCoordinates();
    void putsTheButtonsBelowTheHint_data();
    void putsTheButtonsBelowTheHint();
    void clampsToReach();
    void clampsToInt_data();
    void clampsToInt();
    void truncatesToInt_data();
    void truncatesToInt();
};

void tst_Placement::turnsOverByRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");
    QTest::newRow("-1 turns over") << -1 << false << true;
    QTest::newRow("0 stays upright") << 0 << false << false;
    QTest::newRow("64 stays upright") << 64 << false << false;
    QTest::newRow("-1 stays over") << -1 << true << true;
    QTest::newRow("0 stays over") << 0 << true << true;
    QTest::newRow("64 stays over") << 64 << true << true;
    QTest::newRow("65 rights") << 65 << true << false;
    QTest::newRow("far down rights") << 900 << true << false;
}

void tst_Placement::turnsOverByRow()
{
    QFETCH(int, row);
    QFETCH(bool, before);
    QFETCH(bool, after);
    const PlacementStep step = stepPlacement(atRest(300, row, before, false), kRight, kArrow);
    QCOMPARE(step.upsideDown, after);
    QCOMPARE(step.turnedOver, before != after);
    QVERIFY(!step.changedSides);
}

void tst_Placement::changesSidesByColumn_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<qint64>("right");
    QTest::addColumn<bool>("before");
    QTest::addColumn<bool>("after");
    QTest::newRow("1536 still fits") << 1536 << kRight << false << false;
    QTest::newRow("1537 mirrors") << 1537 << kRight << false << true;
    QTest::newRow("1510 stays mirrored") << 1510 << kRight << true << true;
    QTest::newRow("1509 returns") << 1509 << kRight << true << false;
    QTest::newRow("between, plain") << 1520 << kRight << false << false;
    QTest::newRow("between, mirrored") << 1520 << kRight << true << true;
    QTest::newRow("no host rectangle, 0 mirrors") << 0 << qint64(0) << false << true;
    QTest::newRow("no host rectangle, -383 mirrors") << -383 << qint64(0) << false << true;
    QTest::newRow("no host rectangle, -384 does not") << -384 << qint64(0) << false << false;
    QTest::newRow("no host rectangle, -411 returns") << -411 << qint64(0) << true << false;
    QTest::newRow("no host rectangle, -410 stays") << -410 << qint64(0) << true << true;
}

void tst_Placement::changesSidesByColumn()
{
    QFETCH(int, column);
    QFETCH(qint64, right);
    QFETCH(bool, before);
    QFETCH(bool, after);
    const PlacementStep step = stepPlacement(atRest(column, 300, false, before), right, kArrow);
    QCOMPARE(step.mirror, after);
    QCOMPARE(step.changedSides, before != after);
    QVERIFY(!step.turnedOver);
}

void tst_Placement::flipsOnlyWithinReach_data()
{
    QTest::addColumn<int>("lastX");
    QTest::addColumn<int>("lastY");
    QTest::addColumn<bool>("flips");
    // The target is (1700, -10) and calls for both flips.
    QTest::newRow("exactly 256 across") << 1700 - 256 << -10 << true;
    QTest::newRow("257 across") << 1700 - 257 << -10 << false;
    QTest::newRow("exactly 256 down") << 1700 << -10 + 256 << true;
    QTest::newRow("257 down") << 1700 << -10 + 257 << false;
    QTest::newRow("diagonal, a little too far") << 1700 - 256 << -10 + 1 << false;
    QTest::newRow("diagonal, within") << 1700 - 181 << -10 + 181 << true;
    QTest::newRow("300 away") << 1700 - 300 << -10 << false;
}

void tst_Placement::flipsOnlyWithinReach()
{
    QFETCH(int, lastX);
    QFETCH(int, lastY);
    QFETCH(bool, flips);
    const PlacementStep step = stepPlacement({1700, -10, lastX, lastY, false, false}, kRight, kArrow);
    QCOMPARE(step.turnedOver, flips);
    QCOMPARE(step.changedSides, flips);
    QCOMPARE(step.upsideDown, flips);
    QCOMPARE(step.mirror, flips);
}

void tst_Placement::measuresTheReachToTheShiftedTarget()
{
    // Mirrored and upside down, the window's target is (1000 - 308, 400 + 165).
    const int x = 1000 - 180 - kArrow;
    const int y = 400 + 165;
    const PlacementStep near = stepPlacement({1000, 400, x + 256, y, true, true}, kRight, kArrow);
    QVERIFY(near.turnedOver);
    QVERIFY(near.changedSides);
    const PlacementStep far = stepPlacement({1000, 400, x, y - 257, true, true}, kRight, kArrow);
    QVERIFY(!far.turnedOver);
    QVERIFY(!far.changedSides);
}

void tst_Placement::easesAQuarterOfTheWay_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("last");
    QTest::addColumn<int>("next");
    QTest::newRow("from 0 to 400") << 400 << 0 << 100;
    QTest::newRow("from 400 to 0") << 0 << 400 << 300;
    QTest::newRow("truncated downward") << 10 << 0 << 2;
    QTest::newRow("truncated toward zero below it") << -10 << 0 << -2;
    QTest::newRow("3 short from below stays") << 3 << 0 << 0;
    QTest::newRow("3 over from above snaps") << 0 << 3 << 0;
    QTest::newRow("2 short snaps") << 2 << 0 << 2;
    QTest::newRow("4 short: 1, still 3 short") << 4 << 0 << 1;
    QTest::newRow("negative, 3 short from above stays") << -3 << 0 << 0;
    QTest::newRow("negative, coming up snaps") << -10 << -13 << -10;
    QTest::newRow("across zero from below") << 5 << -5 << -2;
    QTest::newRow("at rest") << 77 << 77 << 77;
}

void tst_Placement::easesAQuarterOfTheWay()
{
    QFETCH(int, target);
    QFETCH(int, last);
    QFETCH(int, next);
    const PlacementStep across = stepPlacement({target, 32, last, 32, false, false}, kRight, kArrow);
    QCOMPARE(across.x, next);
    QCOMPARE(across.y, 32);
    // Row 32 shifts by nothing whichever way; below it the flip would join in, so stay out of its reach.
    const PlacementStep down = stepPlacement({5000, target, 0, last, false, false}, kRight, kArrow);
    QCOMPARE(down.y, next);
}

void tst_Placement::comesToRest_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("target");
    QTest::addColumn<QPoint>("rest");
    QTest::newRow("from the left and above: 3 short") << QPoint(0, 0) << QPoint(400, 300) << QPoint(397, 297);
    QTest::newRow("from the right and below: exact")
        << QPoint(900, 800) << QPoint(400, 300) << QPoint(400, 300);
    QTest::newRow("mixed") << QPoint(0, 800) << QPoint(400, 300) << QPoint(397, 300);
}

void tst_Placement::comesToRest()
{
    QFETCH(QPoint, from);
    QFETCH(QPoint, target);
    QFETCH(QPoint, rest);
    Placement placement{target.x(), target.y(), from.x(), from.y(), false, false};
    for (int tick = 0; tick < 60; ++tick) {
        const PlacementStep step = stepPlacement(placement, kRight, kArrow);
        placement.lastX = step.x;
        placement.lastY = step.y;
    }
    QCOMPARE(QPoint(placement.lastX, placement.lastY), rest);
}

void tst_Placement::headsForTheShiftedTargetOnTheTickOfTheFlip()
{
    const PlacementStep step = stepPlacement({1700, -10, 1700, -10, false, false}, kRight, kArrow);
    QCOMPARE(step.x, 1700 - (180 + kArrow) / 4);
    QCOMPARE(step.y, 31); // a quarter of 165 from -10 is 31.25
}

void tst_Placement::flipsOncePerTarget()
{
    Placement placement{1700, -10, 1500, 100, false, false};
    int turns = 0;
    int changes = 0;
    for (int tick = 0; tick < 60; ++tick) {
        const PlacementStep step = stepPlacement(placement, kRight, kArrow);
        turns += step.turnedOver ? 1 : 0;
        changes += step.changedSides ? 1 : 0;
        placement = {1700, -10, step.x, step.y, step.upsideDown, step.mirror};
    }
    QCOMPARE(turns, 1);
    QCOMPARE(changes, 1);
    QCOMPARE(QPoint(placement.lastX, placement.lastY), QPoint(1700 - 180 - kArrow, -10 + 165 - 3));
}

void tst_Placement::copesWithAnyCoordinates_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("last");
    QTest::addColumn<bool>("flipped");
    QTest::addColumn<int>("settlesAt");
    QTest::newRow("lowest, plain") << kMin << kMin << false << kMin;
    QTest::newRow("lowest, shifted beyond int") << kMin + 10 << kMin << true << kMin;
    QTest::newRow("highest, plain") << kMax << kMax << false << kMax;
    QTest::newRow("from one end to the other") << kMax << kMin << false << kMax;
    QTest::newRow("and back") << kMin << kMax << false << kMin;
}

void tst_Placement::copesWithAnyCoordinates()
{
    QFETCH(int, target);
    QFETCH(int, last);
    QFETCH(bool, flipped);
    QFETCH(int, settlesAt);
    Placement placement{target, target, last, last, false, flipped};
    for (int tick = 0; tick < 200; ++tick) {
        const PlacementStep step = stepPlacement(placement, std::numeric_limits<qint64>::min() / 2, kArrow);
        placement.lastX = step.x;
        placement.lastY = step.y;
    }
    // Single precision has steps of 128 and more out there, so the end is near, not exact.
    QVERIFY2(std::abs(static_cast<double>(placement.lastX) - settlesAt) <= 512.0,
             qPrintable(QString::number(placement.lastX)));
}

void tst_Placement::putsTheButtonsBelowTheHint_data()
{
    QTest::addColumn<QPoint>("window");
    QTest::addColumn<int>("hintHeight");
    QTest::addColumn<QPoint>("next");
    QTest::addColumn<QPoint>("no");
    QTest::newRow("plain") << QPoint(100, 200) << 64 << QPoint(228, 320) << QPoint(284, 320);
    QTest::newRow("no height") << QPoint(0, 0) << 0 << QPoint(128, 56) << QPoint(184, 56);
    QTest::newRow("highest") << QPoint(kMax, kMax) << kMax << QPoint(kMax, kMax) << QPoint(kMax, kMax);
    QTest::newRow("lowest") << QPoint(kMin, kMin) << kMin << QPoint(kMin + 128, kMin)
                            << QPoint(kMin + 184, kMin);
}

void tst_Placement::putsTheButtonsBelowTheHint()
{
    QFETCH(QPoint, window);
    QFETCH(int, hintHeight);
    const ButtonPlaces places = placeButtons(window.x(), window.y(), hintHeight, kArrow);
    QTEST(places.nextAndYes, "next");
    QTEST(places.no, "no");
}

void tst_Placement::clampsToReach()
{
    QCOMPARE(clampToReach({-70000, 70000}), QPoint(-70000, 70000));
    QCOMPARE(clampToReach({kMin, kMax}), QPoint(-(1 << 24), 1 << 24));
    QCOMPARE(clampToReach({kMax, kMin}), QPoint(1 << 24, -(1 << 24)));
}

void tst_Placement::clampsToInt_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("inside") << qint64(-5) << -5;
    QTest::newRow("highest") << qint64(kMax) << kMax;
    QTest::newRow("above") << qint64(kMax) + 1 << kMax;
    QTest::newRow("lowest") << qint64(kMin) << kMin;
    QTest::newRow("below") << qint64(kMin) - 1 << kMin;
}

void tst_Placement::clampsToInt()
{
    QFETCH(qint64, value);
    QTEST(clampToInt(value), "expected");
}

void tst_Placement::truncatesToInt_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("up") << 2.99 << 2;
    QTest::newRow("down") << -2.99 << -2;
    QTest::newRow("above") << 3e9 << kMax;
    QTest::newRow("below") << -3e9 << kMin;
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << kMax;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void tst_Placement::truncatesToInt()
{
    QFETCH(double, value);
    QTEST(truncateToInt(value), "expected");
}

QTEST_APPLESS_MAIN(tst_Placement)
#include "tst_Placement.moc"
