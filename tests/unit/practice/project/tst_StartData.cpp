#include "DescriptionFiles.h"
#include "project/JsonText.h"
#include "project/MapTree.h"
#include "project/StartData.h"

#include <QRegularExpression>
#include <QtTest>

namespace {

const QString kShipped = QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/data");

QByteArray shipped()
{
    QFile file(kShipped + QStringLiteral("/project.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The drawings of the shipped tiles.
QStringList drawings()
{
    QStringList drawings;
    QRegularExpression form(QStringLiteral("\"drawing\": \"(\\w+)\""));
    auto matches = form.globalMatch(QString::fromUtf8(shipped()));
    while (matches.hasNext()) {
        drawings.append(matches.next().captured(1));
    }
    return drawings;
}

} // namespace

class tst_StartData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheShippedDataInEachLanguage_data();
    void readsTheShippedDataInEachLanguage();
    void tellsWhatIsWrong_data();
    void tellsWhatIsWrong();
    void tellsTheLineOfABrokenStartFile();
    void aNewProjectHasTheMapsAndTheStartFiles();
};

void tst_StartData::readsTheShippedDataInEachLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("grass");
    QTest::newRow("English") << QStringLiteral("en_US") << QStringLiteral("Grass");
    QTest::newRow("Japanese") << QStringLiteral("ja_JP") << QStringLiteral("草地");
    QTest::newRow("Chinese") << QStringLiteral("zh_CN") << QStringLiteral("草地");
}

void tst_StartData::readsTheShippedDataInEachLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, grass);
    QStringList errors;
    const StartData data = StartData::read(kShipped, drawings(), locale, &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(data.tiles.size(), 3 * StartData::kTilesPerTab);
    QCOMPARE(data.tiles.first().name, grass);
    QCOMPARE(data.tileSets.size(), 6);
    QCOMPARE(data.sampleMaps.size(), 6);
    QCOMPARE(data.startMaps.first().map.size, QSize(24, 16));
    QCOMPARE(data.startMaps.at(1).level, 1);
    for (const GameMap &map : data.sampleMaps) {
        QVERIFY(!map.layers[0].contains(GameMap::kEmpty));
    }
}

void tst_StartData::tellsWhatIsWrong_data()
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

void tst_StartData::tellsWhatIsWrong()
{
    QFETCH(QByteArray, piece);
    QFETCH(QByteArray, replacement);
    QFETCH(QString, error);
    QByteArray text = shipped();
    QVERIFY(text.contains(piece));
    const DescriptionFiles files;
    const QString path = files.write(QStringLiteral("project.json"), text.replace(piece, replacement));
    QStringList errors;
    StartData::read(files.folder(), drawings(), QStringLiteral("en_US"), &errors);
    const QString expected = path + QStringLiteral(": ") + error;
    const bool told = std::any_of(errors.cbegin(), errors.cend(),
                                  [&expected](const QString &line) { return line.startsWith(expected); });
    QVERIFY2(told, qPrintable(errors.join(QLatin1Char('\n'))));
}

void tst_StartData::tellsTheLineOfABrokenStartFile()
{
    const DescriptionFiles files;
    files.write(QStringLiteral("project.json"), shipped());
    QVERIFY(QDir(files.folder()).mkdir(QStringLiteral("start")));
    const QString path = files.write(QStringLiteral("start/Items.json"), "[\n null,\n]");
    QStringList errors;
    StartData::read(files.folder(), drawings(), QStringLiteral("en_US"), &errors);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.constFirst().startsWith(path + QStringLiteral(": line 3: ")),
             qPrintable(errors.constFirst()));
}

void tst_StartData::aNewProjectHasTheMapsAndTheStartFiles()
{
    QStringList errors;
    const StartData data = StartData::read(kShipped, drawings(), QStringLiteral("ja_JP"), &errors);
    const QMap<QString, QString> files = data.files();
    const auto json = [&files](const QString &name) {
        JsonText::Problem problem;
        return JsonText::parse(files.value(name).toUtf8(), &problem).value_or(QJsonValue());
    };
    const MapTree tree(json(MapTree::file()));
    QCOMPARE(tree.entries().size(), data.startMaps.size());
    for (int i = 0; i < data.startMaps.size(); ++i) {
        const MapTree::Entry entry = tree.entries().at(i);
        const StartData::StartMap &start = data.startMaps.at(i);
        QCOMPARE(entry.name, start.map.name);
        QCOMPARE(entry.level, start.level);
        const GameMap read = GameMap::fromFile(json(MapTree::fileOf(entry.number)));
        QVERIFY(read.layers == start.map.layers);
        QCOMPARE(read.tileSet, start.map.tileSet);
        QCOMPARE(read.displayName, start.map.name);
    }
    QCOMPARE(json(QStringLiteral("data/Tilesets.json"))[2][QLatin1String("name")].toString(),
             data.tileSets.at(1).name);
    QFile system(kShipped + QStringLiteral("/start/System.json"));
    QVERIFY(system.open(QIODevice::ReadOnly));
    QCOMPARE(files.value(QStringLiteral("data/System.json")).toUtf8(), system.readAll());
}

QTEST_GUILESS_MAIN(tst_StartData)
#include "tst_StartData.moc"
