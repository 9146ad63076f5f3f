#include "EventCommandsFixture.h"
#include "project/events/MovementWay.h"

/// The way that a movement route takes, and routes while they are edited.
class tst_MovementWay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWay_data();
    void theWay();
    void addsAheadOfTheEnd();
    void theEndCannotGo();
};

namespace {

QJsonArray route(const QVector<int> &steps)
{
    QJsonArray route;
    for (const int code : steps) {
        route.append(QJsonObject{{str("code"), code}});
    }
    return route;
}

QVector<int> stepsOf(const QJsonArray &route)
{
    QVector<int> steps;
    for (const QJsonValue &step : route) {
        steps.append(step[QLatin1String("code")].toInt());
    }
    return steps;
}

} // namespace

void tst_MovementWay::theWay_data()
{
    QTest::addColumn<QJsonArray>("steps");
    QTest::addColumn<QVector<QPoint>>("cells");
    const QPoint start(5, 5);
    QTest::newRow("nothing") << route({0}) << QVector<QPoint>{start};
    QTest::newRow("round") << route({1, 2, 4, 3, 0}) << QVector<QPoint>{start, {5, 6}, {4, 6}, {4, 5}, start};
    QTest::newRow("forward is where it looks")
        << route({8, 11, 8, 9, 0}) << QVector<QPoint>{start, {5, 6}, {4, 6}, {5, 6}};
    QTest::newRow("after a step it looks there")
        << route({3, 8, 0}) << QVector<QPoint>{start, {6, 5}, {7, 5}};
    QTest::newRow("chance and waits stay") << route({5, 15, 6, 0}) << QVector<QPoint>{start};
    QTest::newRow("jump") << QJsonArray{QJsonObject{{str("code"), 16},
                                                    {str("parameters"), QJsonArray{2, -3}}}}
                          << QVector<QPoint>{start, {7, 2}};
}

void tst_MovementWay::theWay()
{
    QFETCH(QJsonArray, steps);
    QFETCH(QVector<QPoint>, cells);
    QCOMPARE(MovementWay::cells(steps, {5, 5}), cells);
}

void tst_MovementWay::addsAheadOfTheEnd()
{
    QJsonArray steps;
    const QJsonObject left{{str("code"), MovementWay::kLeft}};
    QCOMPARE(MovementWay::insert(&steps, -1, left), 0);
    QCOMPARE(stepsOf(steps), (QVector<int>{2, 0}));
    QCOMPARE(MovementWay::insert(&steps, 1, QJsonObject{{str("code"), MovementWay::kUp}}), 1);
    QCOMPARE(stepsOf(steps), (QVector<int>{2, 4, 0}));
    QCOMPARE(MovementWay::insert(&steps, 0, QJsonObject{{str("code"), MovementWay::kDown}}), 1);
    QCOMPARE(stepsOf(steps), (QVector<int>{2, 1, 4, 0}));
}

void tst_MovementWay::theEndCannotGo()
{
    QJsonArray steps = route({1, 0});
    MovementWay::remove(&steps, 1);
    MovementWay::remove(&steps, 5);
    QCOMPARE(stepsOf(steps), (QVector<int>{1, 0}));
    MovementWay::remove(&steps, 0);
    QCOMPARE(stepsOf(steps), (QVector<int>{0}));
}

QTEST_GUILESS_MAIN(tst_MovementWay)
#include "tst_MovementWay.moc"
