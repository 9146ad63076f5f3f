#include "DescriptionFiles.h"
#include "window/ProjectData.h"

#include <QtTest>

namespace {

const QString kShipped = QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/data/project.json");

QByteArray shipped()
{
    QFile file(kShipped);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_ProjectData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheShippedDataInEachLanguage_data();
    void readsTheShippedDataInEachLanguage();
    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
};

void tst_ProjectData::readsTheShippedDataInEachLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("grass");
    QTest::newRow("English") << QStringLiteral("en_US") << QStringLiteral("Grass");
    QTest::newRow("Japanese") << QStringLiteral("ja_JP") << QStringLiteral("草地");
    QTest::newRow("Chinese") << QStringLiteral("zh_CN") << QStringLiteral("草地");
}

void tst_ProjectData::readsTheShippedDataInEachLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, grass);
    QStringList errors;
    const ProjectData data = ProjectData::read(kShipped, locale, &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(data.tiles.size(), 3 * ProjectData::kTilesPerTab);
    QCOMPARE(data.tiles.first().name, grass);
    QCOMPARE(data.tileSets.size(), 6);
    QCOMPARE(data.sampleMaps.size(), 6);
    QCOMPARE(data.startMaps.first().size, QSize(24, 16));
    QCOMPARE(data.startMaps.at(1).level, 1);
    for (const GameMap &map : data.sampleMaps) {
        QVERIFY(!map.layers[0].contains(GameMap::kEmpty));
    }
}

void tst_ProjectData::tellsWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("piece");
    QTest::addColumn<QByteArray>("replacement");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *name, const char *piece, const char *replacement, const char *error) {
        QTest::newRow(name) << QByteArray(piece) << QByteArray(replacement) << QString::fromLatin1(error);
    };
    row("unknown drawing", R"("drawing": "grass")", R"("drawing": "grasp")",
        "tileTabs[0].tiles[0].drawing: \"grasp\" is unknown; use one of: ");
    row("a letter that no tile has", R"("letter": "T")", R"("letter": "Q")",
        "sampleMaps[0].objects: row 0: no tile has the letter \"T\"");
    row("no colour", R"("tint": "#000000")", R"("tint": "blackish")",
        "tileSets[0].tint: must be a colour, \"#rrggbb\"");
    row("tile set that is not there", R"("tileSet": 0)", R"("tileSet": 6)",
        "sampleMaps[0].tileSet: must be the place of a tile set in \"tileSets\", from 0");
    row("sample that is not there", R"({"sample": 0)", R"({"sample": -1)",
        "startMaps[0].sample: must be the place of a map in \"sampleMaps\", from 0");
    row("tab of another length", R"("tileTabs": [)", R"("tileTabs": [{"tiles": []},)",
        "tileTabs[0].tiles: must be 8 tiles");
    row("row of another length", R"("objects": [)", R"("objects": ["..",)",
        "sampleMaps[0].objects: row 0 must be as long as the first");
    row("more rows than ground", R"("objects": [)", R"("objects": ["..",)",
        "sampleMaps[0].objects: must have as many rows as \"ground\"");
    row("no texts", R"("texts": {)", R"("words": {)",
        "(file): needs tileTabs, tileSets, sampleMaps, startMaps and texts");
}

void tst_ProjectData::tellsWhatIsWrong()
{
    QFETCH(QByteArray, piece);
    QFETCH(QByteArray, replacement);
    QFETCH(QString, error);
    QByteArray text = shipped();
    QVERIFY(text.contains(piece));
    const DescriptionFiles files;
    const QString path = files.write(QStringLiteral("project.json"), text.replace(piece, replacement));
    QStringList errors;
    ProjectData::read(path, QStringLiteral("en_US"), &errors);
    const QString expected = path + QStringLiteral(": ") + error;
    const bool told = std::any_of(errors.cbegin(), errors.cend(),
                                  [&expected](const QString &line) { return line.startsWith(expected); });
    QVERIFY2(told, qPrintable(errors.join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(tst_ProjectData)
#include "tst_ProjectData.moc"
