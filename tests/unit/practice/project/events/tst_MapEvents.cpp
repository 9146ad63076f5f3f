#include "EventCommandsFixture.h"
#include "project/events/MapEvents.h"

/// The events of a map: each has its number and its cell, and none is lost.
class tst_MapEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEventHasTheLowestFreeNumber();
    void numbersStayWhenOneGoes();
    void oneThatCameAndWentLeavesNothingBehind();
    void aCellOutsideIsNotFree();
    void movesAndRenames();
    void theFirstPageIsSeen();
    void aMapWithoutEventsGetsItsList();
    void eventsStayInsideASmallerMap();
    void whereNoCellIsFreeTheEventGoes();
    void membersThatNobodyKnowsStay();
};

namespace {

QJsonObject mapFile(int width, int height)
{
    return {{str("width"), width},
            {str("height"), height},
            {str("note"), str("kept")},
            {str("events"), QJsonArray{QJsonValue()}}};
}

QJsonArray eventsIn(const MapEvents &events)
{
    return events.toFile()[QLatin1String("events")].toArray();
}

} // namespace

void tst_MapEvents::anEventHasTheLowestFreeNumber()
{
    MapEvents events(mapFile(10, 8));
    QCOMPARE(events.add(MapEvents::blank(str("a")), {1, 2}), 1);
    QCOMPARE(events.add(MapEvents::blank(str("b")), {3, 4}), 2);
    events.add(MapEvents::blank(str("c")), {5, 6});
    events.remove(2);
    QCOMPARE(events.add(MapEvents::blank(str("d")), {3, 4}), 2);
    QCOMPARE(events.at({3, 4}), 2);
    QCOMPARE(events.event(2).value(str("id")), QJsonValue(2));
    QCOMPARE(events.event(2).value(str("name")), QJsonValue(str("d")));
    QCOMPARE(events.at({0, 0}), 0);
}

void tst_MapEvents::numbersStayWhenOneGoes()
{
    MapEvents events(mapFile(10, 8));
    events.add(MapEvents::blank(str("a")), {1, 1});
    events.add(MapEvents::blank(str("b")), {2, 2});
    events.remove(1);
    QCOMPARE(events.at({2, 2}), 2);
    QVERIFY(eventsIn(events).at(1).isNull());
    events.remove(7);
    events.remove(0);
    QCOMPARE(events.all().size(), 1);
}

void tst_MapEvents::oneThatCameAndWentLeavesNothingBehind()
{
    MapEvents events(mapFile(10, 8));
    events.remove(events.add(MapEvents::blank(str("a")), {1, 1}));
    QCOMPARE(events.toFile(), QJsonValue(mapFile(10, 8)));
}

void tst_MapEvents::aCellOutsideIsNotFree()
{
    MapEvents events(mapFile(10, 8));
    events.add(MapEvents::blank(str("a")), {1, 1});
    QVERIFY(!events.isFree({1, 1}));
    QVERIFY(events.isFree({9, 7}));
    QVERIFY(!events.isFree({10, 7}));
    QVERIFY(!events.isFree({-1, 0}));
}

void tst_MapEvents::movesAndRenames()
{
    MapEvents events(mapFile(10, 8));
    const int number = events.add(MapEvents::blank(str("a")), {1, 1});
    events.move(number, {4, 5});
    events.rename(number, str("Pip"));
    QCOMPARE(events.at({4, 5}), number);
    QCOMPARE(events.all().at(0).name, str("Pip"));
    events.move(9, {0, 0});
    QCOMPARE(events.at({0, 0}), 0);
}

void tst_MapEvents::theFirstPageIsSeen()
{
    MapEvents events(mapFile(10, 8));
    QJsonObject event = MapEvents::blank(str("a"));
    QJsonObject page = MapEvents::blankPage();
    page.insert(str("image"), str("chest"));
    event.insert(str("pages"), QJsonArray{page, MapEvents::blankPage()});
    events.add(event, {1, 1});
    QCOMPARE(events.all().at(0).picture, str("chest"));
}

void tst_MapEvents::aMapWithoutEventsGetsItsList()
{
    MapEvents events(QJsonObject{{str("width"), 3}, {str("height"), 3}});
    QCOMPARE(events.add(MapEvents::blank(str("a")), {0, 0}), 1);
    QVERIFY(eventsIn(events).at(0).isNull());
}

void tst_MapEvents::eventsStayInsideASmallerMap()
{
    MapEvents events(mapFile(20, 16));
    events.add(MapEvents::blank(str("stays")), {2, 2});
    events.add(MapEvents::blank(str("at the edge")), {7, 3});
    events.add(MapEvents::blank(str("outside")), {12, 3});
    events.add(MapEvents::blank(str("far outside")), {19, 15});
    QCOMPARE(events.countOutside({8, 8}), 2);
    events.keepInside({8, 8});
    QCOMPARE(events.countOutside({8, 8}), 0);
    QCOMPARE(events.event(1).value(str("x")), QJsonValue(2));
    QCOMPARE(events.at({7, 3}), 2);
    QVector<QPoint> cells;
    const QVector<MapEvents::Event> all = events.all();
    for (const MapEvents::Event &event : all) {
        QVERIFY(QRect(0, 0, 8, 8).contains(event.cell));
        QVERIFY(!cells.contains(event.cell));
        cells.append(event.cell);
    }
    QCOMPARE(cells.size(), 4);
    // One cell from the edge cell that is taken.
    QCOMPARE((cells.at(2) - QPoint(7, 3)).manhattanLength(), 1);
    QCOMPARE(cells.at(3), QPoint(7, 7));
}

void tst_MapEvents::whereNoCellIsFreeTheEventGoes()
{
    MapEvents events(mapFile(2, 1));
    events.add(MapEvents::blank(str("a")), {0, 0});
    events.add(MapEvents::blank(str("b")), {1, 0});
    events.keepInside({1, 1});
    QCOMPARE(events.all().size(), 1);
    QCOMPARE(events.at({0, 0}), 1);
}

void tst_MapEvents::membersThatNobodyKnowsStay()
{
    QJsonObject event = MapEvents::blank(str("a"));
    event.insert(str("mark"), 7);
    MapEvents events(mapFile(4, 4));
    const int number = events.add(event, {1, 1});
    events.move(number, {2, 2});
    QCOMPARE(events.event(number).value(str("mark")), QJsonValue(7));
    QCOMPARE(events.toFile()[QLatin1String("note")], QJsonValue(str("kept")));
}

QTEST_GUILESS_MAIN(tst_MapEvents)
#include "tst_MapEvents.moc"
