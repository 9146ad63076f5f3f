#include "Tutorial/overlay/IndicatorState.h"

#include <QtTest>

#include <limits>

namespace {

constexpr int kArrow = 128;
constexpr qint64 kRight = 1920;
constexpr int kMax = std::numeric_limits<int>::max();

IndicatorState restingAt(int x, int y)
{
    IndicatorState state;
    state.setTarget({x, y}, QStringLiteral("MainWindow"), true);
    state.placement.lastX = x;
    state.placement.lastY = y;
    return state;
}

} // namespace

class tst_IndicatorState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsWithoutTargetHintAndIcon();
    void targetSetsPlaceKeyAndArrow();
    void noTargetKeepsThePlace();
    void oneCoordinateAloneIsATarget();
    void longHintKeepsItsFront();
    void turningFlipsAndAsksForAWholePaint_data();
    void turningFlipsAndAsksForAWholePaint();
    void turningWithoutAFlipKeepsThePaintAsItWas();
    void turningMovesNothing();
    void movesOnlyWhenThePlaceIsNew();
    void measuringMovesAWindowAtRest();
    void measuringCancelsAStepOfOneRow();
    void measuringAtTheLastRowStaysANumber();
    void buttonsStandBelowTheHint();
    void copiesAreIndependent();
};

void tst_IndicatorState::beginsWithoutTargetHintAndIcon()
{
    const IndicatorState state;
    QCOMPARE(state.offsetX, IndicatorUpdate::kNoTarget);
    QCOMPARE(state.offsetY, IndicatorUpdate::kNoTarget);
    QVERIFY(state.hint.isEmpty());
    QCOMPARE(state.hintHeight, 64);
    QCOMPARE(state.iconKind, 6);
    QVERIFY(state.arrowVisible);
    QVERIFY(!state.nextWindowEnabled && !state.yesNoWindowEnabled);
    QVERIFY(!state.updateTextEditSize && !state.repaintAll);
}

void tst_IndicatorState::targetSetsPlaceKeyAndArrow()
{
    IndicatorState state;
    state.setTarget({300, 200}, QStringLiteral("MapWindow"), false);
    QCOMPARE(state.placement.newX, 300);
    QCOMPARE(state.placement.newY, 200);
    QCOMPARE(state.offsetX, 300);
    QCOMPARE(state.offsetY, 200);
    QCOMPARE(state.windowKey, QStringLiteral("MapWindow"));
    QVERIFY(!state.arrowVisible);
    QCOMPARE(state.placement.lastX, 0);
    QCOMPARE(state.placement.lastY, 0);
}

void tst_IndicatorState::noTargetKeepsThePlace()
{
    IndicatorState state = restingAt(300, 200);
    state.setTarget({-9999, -9999}, QStringLiteral("Other"), true);
    QCOMPARE(state.placement.newX, 300);
    QCOMPARE(state.placement.newY, 200);
    QCOMPARE(state.offsetX, -9999);
    QCOMPARE(state.offsetY, -9999);
    QCOMPARE(state.windowKey, QStringLiteral("Other"));
    QVERIFY(!state.arrowVisible);
}

void tst_IndicatorState::oneCoordinateAloneIsATarget()
{
    for (const QPoint &target : {QPoint(-9999, 5), QPoint(5, -9999)}) {
        IndicatorState state;
        state.setTarget(target, QString(), true);
        QCOMPARE(QPoint(state.placement.newX, state.placement.newY), target);
        QVERIFY(state.arrowVisible);
    }
}

void tst_IndicatorState::longHintKeepsItsFront()
{
    IndicatorState state;
    const QString front = QStringLiteral("the front ");
    state.setHint(front + QString(100000, QLatin1Char('x')));
    QVERIFY(state.hint.startsWith(front));
    QCOMPARE(state.hint.size(), 8000);
    state.setHint(QString());
    QVERIFY(state.hint.isEmpty());
}

void tst_IndicatorState::turningFlipsAndAsksForAWholePaint_data()
{
    QTest::addColumn<QPoint>("target");
    QTest::addColumn<bool>("upsideDown");
    QTest::addColumn<bool>("mirror");
    QTest::newRow("above the screen") << QPoint(300, -1) << true << false;
    QTest::newRow("at the right edge") << QPoint(1537, 300) << false << true;
    QTest::newRow("both") << QPoint(1537, -1) << true << true;
}

void tst_IndicatorState::turningFlipsAndAsksForAWholePaint()
{
    QFETCH(QPoint, target);
    IndicatorState state = restingAt(target.x(), target.y());
    const PlacementStep step = state.turn(kRight, kArrow);
    QTEST(state.placement.upsideDown, "upsideDown");
    QTEST(state.placement.mirror, "mirror");
    QCOMPARE(step.turnedOver, state.placement.upsideDown);
    QCOMPARE(step.changedSides, state.placement.mirror);
    QVERIFY(state.repaintAll);
}

void tst_IndicatorState::turningWithoutAFlipKeepsThePaintAsItWas()
{
    IndicatorState state = restingAt(300, 200);
    QVERIFY(!state.turn(kRight, kArrow).turnedOver);
    QVERIFY(!state.repaintAll);
    state.repaintAll = true; // of a flip that nothing has painted yet
    QVERIFY(!state.turn(kRight, kArrow).turnedOver);
    QVERIFY(state.repaintAll);
}

void tst_IndicatorState::turningMovesNothing()
{
    IndicatorState state = restingAt(300, 200);
    state.setTarget({100, 200}, QString(), true);
    const PlacementStep step = state.turn(kRight, kArrow);
    QCOMPARE(QPoint(step.x, step.y), QPoint(250, 200));
    QCOMPARE(QPoint(state.placement.lastX, state.placement.lastY), QPoint(300, 200));
}

void tst_IndicatorState::movesOnlyWhenThePlaceIsNew()
{
    IndicatorState state = restingAt(300, 200);
    QVERIFY(!state.moveTo({300, 200}, false));
    QVERIFY(state.moveTo({301, 200}, false));
    QVERIFY(state.moveTo({301, 199}, false));
    QCOMPARE(QPoint(state.placement.lastX, state.placement.lastY), QPoint(301, 199));
    QVERIFY(!state.moveTo({301, 199}, false));
}

void tst_IndicatorState::measuringMovesAWindowAtRest()
{
    IndicatorState state = restingAt(300, 200);
    QVERIFY(state.moveTo({300, 200}, true));
    QCOMPARE(state.placement.lastY, 200);
    QVERIFY(!state.moveTo({300, 200}, false));
}

void tst_IndicatorState::measuringCancelsAStepOfOneRow()
{
    IndicatorState state = restingAt(300, 200);
    QVERIFY(!state.moveTo({300, 201}, true));
    QCOMPARE(state.placement.lastY, 201);
}

void tst_IndicatorState::measuringAtTheLastRowStaysANumber()
{
    IndicatorState state = restingAt(300, kMax);
    QVERIFY(state.moveTo({300, kMax}, true));
    QCOMPARE(state.placement.lastY, kMax);
}

void tst_IndicatorState::buttonsStandBelowTheHint()
{
    IndicatorState state = restingAt(300, 200);
    state.hintHeight = 100;
    const ButtonPlaces places = state.buttonPlaces(kArrow);
    QCOMPARE(places.nextAndYes, QPoint(300 + 128, 200 + 100 + 56));
    QCOMPARE(places.no, places.nextAndYes + QPoint(56, 0));
}

void tst_IndicatorState::copiesAreIndependent()
{
    const IndicatorState before = restingAt(300, 200);
    IndicatorState after = before;
    after.setTarget({1, 2}, QStringLiteral("Other"), false);
    after.setHint(QStringLiteral("hint"));
    QCOMPARE(before.placement.newX, 300);
    QCOMPARE(before.windowKey, QStringLiteral("MainWindow"));
    QVERIFY(before.hint.isEmpty());
}

QTEST_APPLESS_MAIN(tst_IndicatorState)
#include "tst_IndicatorState.moc"
