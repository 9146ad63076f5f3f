#include "window/ProjectContents.h"

#include <QtTest>

namespace {

QString text(const char *json)
{
    return QString::fromUtf8(json);
}

QString file(const char *name)
{
    return QStringLiteral("data/%1.json").arg(QString::fromLatin1(name));
}

} // namespace

class tst_ProjectContents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheNamesOfEachList();
    void readsMapsInTheOrderOfTheirTree();
    void readsCellsLayerByLayer();
    void survivesFilesOfAnotherShape_data();
    void survivesFilesOfAnotherShape();
};

void tst_ProjectContents::readsTheNamesOfEachList()
{
    const ProjectContents contents = ProjectContents::read(
        {{file("Items"), text(R"([null, {"id": 1, "name": "薬草"}, null, {"id": 3, "name": "Bread"}])")},
         {file("System"), text(R"({"switches": [null, "Gate open"]})")}},
        8);
    QCOMPARE(contents.names.value(QStringLiteral("items")),
             (QStringList{QStringLiteral("薬草"), QString(), QStringLiteral("Bread")}));
    QCOMPARE(contents.names.value(QStringLiteral("switches")), QStringList{QStringLiteral("Gate open")});
    QCOMPARE(contents.names.value(QStringLiteral("actors")), QStringList());
    const QStringList sources = contents.names.keys();
    QCOMPARE(QSet<QString>(sources.begin(), sources.end()).size(), ProjectContents::sources().size());
    QVERIFY(contents.maps.isEmpty());
}

void tst_ProjectContents::readsMapsInTheOrderOfTheirTree()
{
    const ProjectContents contents = ProjectContents::read({{file("MapInfos"), text(R"([null,
            {"id": 1, "name": "Village", "parentId": 0, "order": 2},
            {"id": 2, "name": "Forest", "parentId": 0, "order": 1},
            {"id": 3, "name": "Shop", "parentId": 1, "order": 4},
            null,
            {"id": 5, "name": "Inn", "parentId": 1, "order": 3},
            {"id": 6, "name": "Its own parent", "parentId": 6, "order": 5}])")}},
                                                           8);
    QStringList maps;
    for (const GameMap &map : contents.maps) {
        maps.append(QStringLiteral("%1 %2").arg(map.level).arg(map.name));
        QCOMPARE(map.displayName, map.name);
    }
    QCOMPARE(maps, (QStringList{QStringLiteral("0 Forest"), QStringLiteral("0 Village"),
                                QStringLiteral("1 Inn"), QStringLiteral("1 Shop")}));
}

void tst_ProjectContents::readsCellsLayerByLayer()
{
    const ProjectContents contents = ProjectContents::read(
        {{file("MapInfos"), text(R"([null, {"id": 1, "name": "M", "parentId": 0, "order": 1}])")},
         {file("Map001"),
          text(
              R"({"width": 2, "height": 2, "tilesetId": 5, "data": [1, 2, 8, 9,  0, -3, 3, 0,  0, 0, 0, 4, 5]})")}},
        8);
    const GameMap &map = contents.maps.constFirst();
    QCOMPARE(map.size, QSize(2, 2));
    QCOMPARE(map.tileSet, 4);
    constexpr int kEmpty = GameMap::kEmpty;
    QCOMPARE(map.layers[0], (GameMap::Layer{0, 1, 7, kEmpty})); // there are eight tiles
    QCOMPARE(map.layers[1], (GameMap::Layer{kEmpty, kEmpty, 2, kEmpty}));
    QCOMPARE(map.layers[2], (GameMap::Layer{kEmpty, kEmpty, kEmpty, 3}));
}

void tst_ProjectContents::survivesFilesOfAnotherShape_data()
{
    QTest::addColumn<QString>("map");
    for (const char *map : {"", "[", "[]", "{}", R"({"width": -1, "height": 1000000, "data": "none"})",
                            R"({"width": "2", "height": null, "data": [null, {}, "1"]})"}) {
        QTest::newRow(map) << text(map);
    }
}

void tst_ProjectContents::survivesFilesOfAnotherShape()
{
    QFETCH(QString, map);
    const ProjectContents contents =
        ProjectContents::read({{file("MapInfos"), text(R"([{}, {"id": 1, "name": "M"}, 7, "x"])")},
                               {file("Map001"), map},
                               {file("System"), map},
                               {file("Items"), map}},
                              8);
    QCOMPARE(contents.maps.size(), 1);
    const GameMap &read = contents.maps.constFirst();
    QVERIFY(read.size.width() >= 1 && read.size.height() <= 256);
    QVERIFY(!read.layers[0].isEmpty());
    QCOMPARE(read.layers[0].count(GameMap::kEmpty), read.layers[0].size());
    QCOMPARE(contents.names.value(QStringLiteral("items")), QStringList());
}

QTEST_GUILESS_MAIN(tst_ProjectContents)
#include "tst_ProjectContents.moc"
