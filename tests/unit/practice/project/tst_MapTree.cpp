#include "project/MapTree.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace {

MapTree tree(const char *text)
{
    return MapTree(QJsonDocument::fromJson(text).array());
}

QStringList shown(const MapTree &tree)
{
    QStringList lines;
    const QVector<MapTree::Entry> entries = tree.entries();
    for (const MapTree::Entry &entry : entries) {
        lines.append(QStringLiteral("%1 %2 %3").arg(entry.level).arg(entry.number).arg(entry.name));
    }
    return lines;
}

QStringList lines(std::initializer_list<const char *> texts)
{
    QStringList lines;
    for (const char *text : texts) {
        lines.append(QString::fromLatin1(text));
    }
    return lines;
}

const char *const kMaps = R"([null,
    {"id": 1, "name": "Village", "parentId": 0, "order": 2},
    {"id": 2, "name": "Forest", "parentId": 0, "order": 5},
    {"id": 3, "name": "Shop", "parentId": 1, "order": 4},
    null,
    {"id": 5, "name": "Inn", "parentId": 1, "order": 3},
    {"id": 6, "name": "Its own parent", "parentId": 6, "order": 9}])";

} // namespace

class tst_MapTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsMapsInTheOrderOfTheirTree();
    void mapsWithoutTheirParentStandOnTop();
    void survivesListsOfAnotherShape_data();
    void survivesListsOfAnotherShape();
    void namesFilesWithThreeDigits();
    void growsFromNothing();
    void aNewMapStandsBehindItsNeighbourAndItsChildren();
    void withoutANeighbourANewMapComesLast();
    void childrenOfARemovedMapStay();
    void removingWhatIsNotThereChangesNothing();
};

void tst_MapTree::readsMapsInTheOrderOfTheirTree()
{
    QCOMPARE(shown(tree(kMaps)), lines({"0 1 Village", "1 5 Inn", "1 3 Shop", "0 2 Forest"}));
    QCOMPARE(tree(kMaps).toFile(), QJsonValue(QJsonDocument::fromJson(kMaps).array()));
}

void tst_MapTree::mapsWithoutTheirParentStandOnTop()
{
    const MapTree read = tree(R"([null, {"id": 1, "name": "Shop", "parentId": 9, "order": 2}, null,
        {"id": 3, "name": "Cellar", "parentId": 1, "order": 3},
        {"id": 4, "name": "Inn", "parentId": 2, "order": 4},
        {"id": 5, "name": "Attic", "parentId": -1, "order": 5},
        {"id": 6, "name": "East", "parentId": 7, "order": 6},
        {"id": 7, "name": "West", "parentId": 6, "order": 7}])");
    QCOMPARE(shown(read), lines({"0 1 Shop", "1 3 Cellar", "0 4 Inn", "0 5 Attic"}));
}

void tst_MapTree::survivesListsOfAnotherShape_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char *text : {"{}", "[]", "[null]", R"([{}, 7, "x", {"id": 1}])"}) {
        QTest::newRow(text) << QByteArray(text);
    }
}

void tst_MapTree::survivesListsOfAnotherShape()
{
    QFETCH(QByteArray, text);
    MapTree read = tree(text.constData());
    QVERIFY(read.entries().isEmpty());
    const int number = read.append(QStringLiteral("New"), 0);
    QVERIFY(number >= 1);
    QCOMPARE(shown(read), QStringList{QStringLiteral("0 %1 New").arg(number)});
}

void tst_MapTree::namesFilesWithThreeDigits()
{
    QCOMPARE(MapTree::fileOf(7), QStringLiteral("data/Map007.json"));
    QCOMPARE(MapTree::fileOf(1234), QStringLiteral("data/Map1234.json"));
}

void tst_MapTree::growsFromNothing()
{
    MapTree grown;
    QVERIFY(grown.entries().isEmpty());
    QCOMPARE(grown.append(QStringLiteral("Village"), 0), 1);
    QCOMPARE(grown.append(QStringLiteral("Shop"), 1), 2);
    QCOMPARE(grown.append(QStringLiteral("Oasis"), 0), 3);
    QCOMPARE(shown(grown), lines({"0 1 Village", "1 2 Shop", "0 3 Oasis"}));
    const QJsonObject first = grown.toFile()[1].toObject();
    QCOMPARE(first.keys(), lines({"expanded", "id", "name", "order", "parentId"}));
}

void tst_MapTree::aNewMapStandsBehindItsNeighbourAndItsChildren()
{
    MapTree changed = tree(kMaps);
    QCOMPARE(changed.insertBehind(1, QStringLiteral("Cave")), 7);
    QCOMPARE(shown(changed), lines({"0 1 Village", "1 5 Inn", "1 3 Shop", "0 7 Cave", "0 2 Forest"}));
    QCOMPARE(changed.insertBehind(5, QStringLiteral("Cellar")), 8);
    QCOMPARE(shown(changed),
             lines({"0 1 Village", "1 5 Inn", "1 8 Cellar", "1 3 Shop", "0 7 Cave", "0 2 Forest"}));
    // The orders are those of the whole tree from top to bottom.
    int order = 0;
    for (const MapTree::Entry &entry : changed.entries()) {
        const int next = changed.toFile()[entry.number][QLatin1String("order")].toInt();
        QVERIFY(next > order);
        order = next;
    }
}

void tst_MapTree::withoutANeighbourANewMapComesLast()
{
    MapTree changed = tree(kMaps);
    changed.insertBehind(-1, QStringLiteral("Cave"));
    QCOMPARE(shown(changed).constLast(), QStringLiteral("0 7 Cave"));
}

void tst_MapTree::childrenOfARemovedMapStay()
{
    MapTree changed = tree(kMaps);
    changed.remove(1);
    QCOMPARE(shown(changed), lines({"0 5 Inn", "0 3 Shop", "0 2 Forest"}));
    QVERIFY(changed.toFile()[1].isNull());
}

void tst_MapTree::removingWhatIsNotThereChangesNothing()
{
    for (const int number : {-1, 0, 7}) {
        MapTree changed = tree(kMaps);
        changed.remove(number);
        QCOMPARE(changed.toFile(), tree(kMaps).toFile());
    }
}

QTEST_APPLESS_MAIN(tst_MapTree)
#include "tst_MapTree.moc"
