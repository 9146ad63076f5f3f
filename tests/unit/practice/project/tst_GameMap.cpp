#include "project/GameMap.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

#include <algorithm>

class tst_GameMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void blankMapHasGroundBelowTwoEmptyLayers();
    void setTileOutsideChangesNothing();
    void resizeKeepsWhatBothSizesHave();
    void rectangleIsTheSameFromEitherCorner();
    void ellipse_data();
    void ellipse();
    void lineHasNoGaps_data();
    void lineHasNoGaps();
    void connectedStopsAtOtherTiles();
    void connectedOutsideIsEmpty();
    void readsCellsLayerByLayer();
    void survivesFilesOfAnotherShape_data();
    void survivesFilesOfAnotherShape();
    void aNewFileHoldsTheMap();
};

void tst_GameMap::blankMapHasGroundBelowTwoEmptyLayers()
{
    const GameMap map = GameMap::blank({3, 2}, 7);
    QCOMPARE(map.size, QSize(3, 2));
    QCOMPARE(map.layers[0], GameMap::Layer(6, 7));
    QCOMPARE(map.layers[1], GameMap::Layer(6, GameMap::kEmpty));
    QCOMPARE(map.layers[2], GameMap::Layer(6, GameMap::kEmpty));
}

void tst_GameMap::setTileOutsideChangesNothing()
{
    GameMap map = GameMap::blank({3, 2}, 0);
    const GameMap::Layers before = map.layers;
    for (const QPoint &cell : {QPoint(-1, 0), QPoint(0, -1), QPoint(3, 0), QPoint(0, 2)}) {
        map.setTile(0, cell, 5);
        QCOMPARE(map.tile(0, cell), GameMap::kEmpty);
    }
    QVERIFY(map.layers == before);
}

void tst_GameMap::resizeKeepsWhatBothSizesHave()
{
    GameMap map = GameMap::blank({3, 2}, 0);
    map.setTile(0, {1, 1}, 4);
    map.setTile(2, {2, 0}, 9);
    map.resize({2, 3}, 1);
    QCOMPARE(map.layers[0], (GameMap::Layer{0, 0, 0, 4, 1, 1}));
    QCOMPARE(map.layers[2], GameMap::Layer(6, GameMap::kEmpty));
}

void tst_GameMap::rectangleIsTheSameFromEitherCorner()
{
    const QVector<QPoint> cells{{1, 2}, {2, 2}, {1, 3}, {2, 3}};
    QCOMPARE(GameMap::rectangle({1, 2}, {2, 3}), cells);
    QCOMPARE(GameMap::rectangle({2, 2}, {1, 3}), cells);
    QCOMPARE(GameMap::rectangle({2, 3}, {1, 2}), cells);
}

void tst_GameMap::ellipse_data()
{
    QTest::addColumn<QPoint>("to");
    QTest::addColumn<int>("count");
    QTest::newRow("one cell") << QPoint(0, 0) << 1;
    QTest::newRow("a row is filled") << QPoint(4, 0) << 5;
    QTest::newRow("three by three has no corner gaps") << QPoint(2, 2) << 9;
    QTest::newRow("five by five loses its corners") << QPoint(4, 4) << 21;
}

void tst_GameMap::ellipse()
{
    QFETCH(QPoint, to);
    QFETCH(int, count);
    QCOMPARE(GameMap::ellipse({0, 0}, to).size(), count);
    QCOMPARE(GameMap::ellipse(to, {0, 0}), GameMap::ellipse({0, 0}, to));
}

void tst_GameMap::lineHasNoGaps_data()
{
    QTest::addColumn<QPoint>("to");
    QTest::newRow("a point") << QPoint(2, 3);
    QTest::newRow("flat") << QPoint(9, 3);
    QTest::newRow("steep and back") << QPoint(0, -6);
    QTest::newRow("slanted") << QPoint(8, 5);
}

void tst_GameMap::lineHasNoGaps()
{
    QFETCH(QPoint, to);
    const QVector<QPoint> cells = GameMap::line({2, 3}, to);
    QCOMPARE(cells.first(), QPoint(2, 3));
    QCOMPARE(cells.last(), to);
    for (int index = 1; index < cells.size(); ++index) {
        const QPoint step = cells[index] - cells[index - 1];
        QVERIFY(qAbs(step.x()) <= 1 && qAbs(step.y()) <= 1);
    }
}

void tst_GameMap::connectedStopsAtOtherTiles()
{
    GameMap map = GameMap::blank({4, 3}, 0);
    for (const QPoint &cell : {QPoint(2, 0), QPoint(2, 1), QPoint(2, 2)}) {
        map.setTile(0, cell, 1);
    }
    QVector<QPoint> left = map.connected(0, {0, 0});
    std::sort(left.begin(), left.end(), [](const QPoint &a, const QPoint &b) {
        return std::make_pair(a.y(), a.x()) < std::make_pair(b.y(), b.x());
    });
    QCOMPARE(left, GameMap::rectangle({0, 0}, {1, 2}));
    QCOMPARE(map.connected(0, {3, 1}).size(), 3);
    QCOMPARE(map.connected(1, {0, 0}).size(), 12);
}

void tst_GameMap::connectedOutsideIsEmpty()
{
    QVERIFY(GameMap::blank({4, 3}, 0).connected(0, {4, 0}).isEmpty());
}

void tst_GameMap::readsCellsLayerByLayer()
{
    const QByteArray text = R"({"width": 2, "height": 2, "tilesetId": 5, "displayName": "Old town",
                               "data": [1, 2, 8, 9,  0, -3, 3, 0,  0, 0, 0, 4, 5]})";
    const GameMap map = GameMap::fromFile(QJsonDocument::fromJson(text).object());
    QCOMPARE(map.size, QSize(2, 2));
    QCOMPARE(map.tileSet, 4);
    QCOMPARE(map.displayName, QStringLiteral("Old town"));
    constexpr int kEmpty = GameMap::kEmpty;
    QCOMPARE(map.layers[0], (GameMap::Layer{0, 1, 7, 8}));
    QCOMPARE(map.layers[1], (GameMap::Layer{kEmpty, -4, 2, kEmpty}));
    QCOMPARE(map.layers[2], (GameMap::Layer{kEmpty, kEmpty, kEmpty, 3}));
    QCOMPARE(map.placeInFile(2, {1, 1}), 11);
}

void tst_GameMap::survivesFilesOfAnotherShape_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char *text : {"", "[]", "{}", R"({"width": -1, "height": 1000000, "data": "none"})",
                             R"({"width": "2", "height": null, "data": [null, {}, "1"]})"}) {
        QTest::newRow(text) << QByteArray(text);
    }
}

void tst_GameMap::survivesFilesOfAnotherShape()
{
    QFETCH(QByteArray, text);
    const QJsonDocument document = QJsonDocument::fromJson(text);
    const GameMap map =
        GameMap::fromFile(document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()));
    QVERIFY(map.size.width() >= 1 && map.size.height() <= GameMap::kLargest);
    QVERIFY(!map.layers[0].isEmpty());
    QCOMPARE(map.layers[0].count(GameMap::kEmpty), map.layers[0].size());
}

void tst_GameMap::aNewFileHoldsTheMap()
{
    GameMap map = GameMap::blank({3, 2}, 4);
    map.setTile(2, {2, 1}, 7);
    map.displayName = QStringLiteral("Cellar");
    map.tileSet = 2;
    const QJsonValue file = map.toFile();
    const GameMap read = GameMap::fromFile(file);
    QCOMPARE(read.size, map.size);
    QVERIFY(read.layers == map.layers);
    QCOMPARE(read.displayName, map.displayName);
    QCOMPARE(read.tileSet, 2);
    QCOMPARE(file[QLatin1String("tilesetId")].toInt(), 3);
    QCOMPARE(file[QLatin1String("data")].toArray().size(), 18);
}

QTEST_APPLESS_MAIN(tst_GameMap)
#include "tst_GameMap.moc"
