#include "SampleTest.h"
#include "SampleWays.h"

#include <QJsonArray>

/// The sample project can be walked through in each step: every event can be got to, and one comes back from
/// everywhere.
class tst_SampleWays : public SampleTest
{
    Q_OBJECT

private Q_SLOTS:
    void leadsToEachEventAndBack();
    void opensTheMapsOneAfterTheOther();
    void findsWhatIsInTheWay_data();
    void findsWhatIsInTheWay();
    void findsAWallInTheWay();
    void findsACorridorThatAFigureBlocks();
    void findsAMapWithoutAWay();
};

using sample::changed;
using sample::kFirstStep;
using sample::kLastStep;
using sample::readStep;
using sample::stepName;

namespace {

constexpr int kTree = 9;

/// From which step on the player can walk to the map; before, a lesson has yet to make the way.
const QMap<int, int> kOpenFrom = {{1, 2}, {2, 9}, {3, 4}, {4, 2}, {5, 2}, {6, 19}, {7, 9}, {8, 9}};

QString lines(const QStringList &findings)
{
    return findings.join(QLatin1Char('\n'));
}

} // namespace

void tst_SampleWays::leadsToEachEventAndBack()
{
    QCOMPARE(firstFinding([](const sample::Files &files) { return sample::Ways(files).findings(); }),
             QString());
}

void tst_SampleWays::opensTheMapsOneAfterTheOther()
{
    for (int step = kFirstStep; step <= kLastStep; ++step) {
        const sample::Files files = readStep(step);
        QSet<int> closed;
        for (auto map = kOpenFrom.begin(); map != kOpenFrom.end(); ++map) {
            if (map.value() > step && files.contains(sample::mapFile(map.key()))) {
                closed.insert(map.key());
            }
        }
        QVERIFY2(sample::Ways(files).unreachedMaps() == closed, qPrintable(stepName(step)));
    }
}

void tst_SampleWays::findsWhatIsInTheWay_data()
{
    addChangeColumns();
    const QJsonArray nothing = {QJsonObject{{QStringLiteral("code"), 0}}};
    addChange("start in a tree", "System.json", "startX", 0,
              "nobody can stand at the start (0, 11) of map 1");
    addChange("event in a fence", "Map001.json", "events/9/y", 0,
              "Map001.json event 9: nobody gets to (11, 0) of map 1");
    addChange("figure among rocks", "Map007.json", "events/7/y", 2,
              "Map007.json event 7: nobody gets to (11, 2) of map 7");
    addChange("target in a wall", "Map001.json", "events/6/pages/0/list/0/parameters/2", 0,
              "Map001.json event 6: nobody can stand at (0, 7) of map 3");
    addChange("target on a figure", "Map002.json", "events/3/pages/0/list/0/parameters",
              QJsonArray{0, 1, 12, 4, 4, 0}, "Map002.json event 3: nobody can stand at (12, 4) of map 1");
    addChange("target on a transfer", "Map001.json", "events/6/pages/0/list/0/parameters/3", 8,
              "Map001.json event 6: nobody can stand at (5, 8) of map 3");
    addChange("half an exit of a village", "Map001.json", "events/10/pages/0/list", nothing,
              "Map001.json event 9: the cell beside it (12, 15) of map 1 leads nowhere");
    addChange("half a gate", "Map007.json", "events/5/pages/1/list", nothing,
              "Map007.json event 4: the cell beside it (10, 5) of map 7 leads nowhere");
    addChange("no way back", "Map003.json", "events/1/pages/0/list", nothing,
              "nobody comes back from (5, 7) of map 3");
}

void tst_SampleWays::findsWhatIsInTheWay()
{
    QFETCH(QString, finding);
    const QString findings = lines(sample::Ways(lastWithChange()).findings());
    QVERIFY2(findings.contains(finding), qPrintable(findings));
}

void tst_SampleWays::findsAWallInTheWay()
{
    sample::Files files = m_last;
    const int width = sample::map(files, 8).value(QStringLiteral("width")).toInt();
    const int cells = width * sample::map(files, 8).value(QStringLiteral("height")).toInt();
    for (int row = 1; row <= 5; ++row) {
        files = changed(files, sample::mapFile(8), QStringLiteral("data/%1").arg(cells + row * width + 12),
                        kTree);
    }
    const QStringList findings = sample::Ways(files).findings();
    QCOMPARE(findings, QStringList{QStringLiteral("Map008.json event 3: nobody gets to (20, 3) of map 8")});
}

void tst_SampleWays::findsACorridorThatAFigureBlocks()
{
    // Row 8 of the shop is its only way between counter and door once trees stand beside it.
    sample::Files files = m_last;
    const QString map = sample::mapFile(4);
    constexpr int kWidth = 14;
    constexpr int kCells = 140;
    for (int column = 1; column < kWidth - 1; ++column) {
        if (column != 6) {
            files = changed(files, map, QStringLiteral("data/%1").arg(kCells + 7 * kWidth + column), kTree);
        }
    }
    QCOMPARE(sample::Ways(files).findings(), QStringList());
    QJsonObject figure = sample::map(files, 4).value(QStringLiteral("events")).toArray().at(2).toObject();
    figure.insert(QStringLiteral("id"), 3);
    figure.insert(QStringLiteral("y"), 7);
    files = changed(files, map, QStringLiteral("events/3"), figure);
    const QStringList findings = sample::Ways(files).findings();
    QVERIFY2(findings.contains(QStringLiteral("Map004.json event 2: nobody gets to (6, 3) of map 4")),
             qPrintable(lines(findings)));
}

void tst_SampleWays::findsAMapWithoutAWay()
{
    const sample::Files files =
        changed(m_last, sample::mapFile(1), QStringLiteral("events/3/pages/0/list"), QJsonArray());
    QCOMPARE(sample::Ways(files).unreachedMaps(), QSet<int>{4});
}

QTEST_GUILESS_MAIN(tst_SampleWays)
#include "tst_SampleWays.moc"
