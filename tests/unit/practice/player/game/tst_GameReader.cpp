#include "SmallGame.h"

#include <QTest>

/// Whatever the data files hold, they are read, and what is wrong is named.
class tst_GameReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theSampleIsReadWhole();
    void anEnemyIsReadAsItsWindowsHaveIt();
    void nothingAtAllIsNamed();
    void wildMapsAreNamed_data();
    void wildMapsAreNamed();
    void aFileOfAnotherTypeIsNamed();
    void anythingCanBePlayed_data();
    void anythingCanBePlayed();
    void theFingerprintIsThatOfTheValues();
};

namespace {

QStringList texts(const player::GameData &data)
{
    QStringList texts;
    for (const player::Problem &problem : data.problems) {
        texts.append(problem.toString());
    }
    return texts;
}

std::shared_ptr<const player::GameData> read(const player::GameData::Files &files)
{
    return player::GameReader::read(files, sample::tileNames());
}

} // namespace

void tst_GameReader::theSampleIsReadWhole()
{
    const auto data = read(sample::gameFiles(sample::readStep(sample::kLastStep), QStringLiteral("en_US")));
    QCOMPARE(texts(*data), QStringList());
    QCOMPARE(data->maps.ids().size(), 8);
    QCOMPARE(data->actors.find(1)->name, QStringLiteral("Mila"));
    QCOMPARE(data->classes.find(1)->hp.at(3), qint64(56));
    QCOMPARE(data->troops.find(6)->members.size(), 3);
    QCOMPARE(data->troops.find(6)->pages.constFirst().conditions.enemyHp, 50);
    QCOMPARE(data->states.find(4)->maxTurns, 2);
    const player::MapData *const village = data->maps.find(1);
    QCOMPARE(village->size, QSize(24, 16));
    QVERIFY(village->isFloor({11, 11}));
    QVERIFY(!village->isFloor({0, 0}));
    QVERIFY(!village->isFloor({-1, 3}));
    QCOMPARE(village->event(11)->pages.constFirst().route.steps.size(), 4);
}

void tst_GameReader::anEnemyIsReadAsItsWindowsHaveIt()
{
    auto files = smallGame::files({QJsonValue()});
    files.insert(QStringLiteral("data/Enemies.json"), QJsonDocument::fromJson(R"([null, {"id": 1, "hp": 9,
        "dropItems": [{"itemId": 1, "denominator": 1000}, {"itemId": 2, "denominator": 0}],
        "actions": [{"skillId": 1, "rating": 10}]}])")
                                                          .array());
    const auto data = read(files);
    const player::EnemyEntry *const enemy = data->enemies.find(1);
    QVERIFY(enemy != nullptr);
    QCOMPARE(enemy->drops.size(), 2);
    QCOMPARE(enemy->drops.at(0).denominator, 1000);
    QCOMPARE(enemy->drops.at(1).denominator, 0);
    QCOMPARE(enemy->actions.constFirst().rating, 10);
}

void tst_GameReader::nothingAtAllIsNamed()
{
    const auto data = read({});
    QVERIFY(data->problems.size() > 10);
    QVERIFY(texts(*data).contains(
        QStringLiteral("data/Items.json: The file is missing; its entries are not there.")));
}

void tst_GameReader::wildMapsAreNamed_data()
{
    QTest::addColumn<QJsonValue>("width");
    QTest::addColumn<QJsonValue>("height");
    QTest::newRow("no cells") << QJsonValue(0) << QJsonValue(0);
    QTest::newRow("10,000 cells in a row") << QJsonValue(10000) << QJsonValue(1);
    QTest::newRow("more cells than there are numbers") << QJsonValue(100000) << QJsonValue(100000);
    QTest::newRow("less than none") << QJsonValue(-5) << QJsonValue(7);
    QTest::newRow("no number") << QJsonValue(QStringLiteral("x")) << QJsonValue();
}

void tst_GameReader::wildMapsAreNamed()
{
    QFETCH(QJsonValue, width);
    QFETCH(QJsonValue, height);
    auto files = smallGame::files({QJsonValue()});
    QJsonObject map = files.value(QStringLiteral("data/Map001.json")).toObject();
    map.insert(QStringLiteral("width"), width);
    map.insert(QStringLiteral("height"), height);
    files.insert(QStringLiteral("data/Map001.json"), map);
    sample::Play play(files, smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("wait 60\npress right\npress act\npress menu\nwait 10")), QString());
    QVERIFY(!play.hand().problems().isEmpty());
    QCOMPARE(play.hand().problems().constFirst().map, 1);
}

void tst_GameReader::aFileOfAnotherTypeIsNamed()
{
    auto files = smallGame::files({QJsonValue()});
    files.insert(QStringLiteral("data/Items.json"), QJsonObject());
    files.insert(QStringLiteral("data/System.json"), QJsonArray());
    const auto data = read(files);
    QVERIFY(texts(*data).contains(
        QStringLiteral("data/Items.json: The file is no list of entries; they are not there.")));
    QVERIFY(texts(*data).join(QLatin1Char('\n')).contains(QStringLiteral("data/System.json")));
}

void tst_GameReader::anythingCanBePlayed_data()
{
    QTest::addColumn<QByteArray>("anything");
    QTest::newRow("null") << QByteArray("[null]");
    QTest::newRow("numbers") << QByteArray("[null,1,2,3]");
    QTest::newRow("lists") << QByteArray("[[],[[]],[null]]");
    QTest::newRow("an object") << QByteArray(
        R"({"id":-1,"name":[],"pages":{},"width":3,"height":3,"data":["a"],
        "events":[null,{"x":1e9,"y":-1e9,"pages":[7,{"list":3,"moveType":99,"trigger":-4}]}]})");
    QTest::newRow("entries of other types")
        << QByteArray(R"([null,{"name":7,"growth":[],"traits":{},"effects":[3,{"hp":"x"}],"equips":{},
            "members":[7],"pages":[{"conditions":[],"list":[{"code":"x"}]}]}])");
}

void tst_GameReader::anythingCanBePlayed()
{
    QFETCH(QByteArray, anything);
    const auto good = smallGame::filesWith(R"({"code":117,"indent":0,"parameters":[1]})");
    // Each file in turn, and all of them.
    QStringList names = good.keys();
    names.append(QString());
    for (const QString &name : qAsConst(names)) {
        auto files = good;
        for (const QString &file : good.keys()) {
            if (name.isEmpty() || name == file) {
                files.insert(file, smallGame::json(anything));
            }
        }
        sample::Play play(files, smallGame::onMap());
        QCOMPARE(play.run(QStringLiteral("press act\nwait 20\npress right\npress menu\nwait 3\npress act 3\n"
                                         "press cancel 3")),
                 QString());
    }
}

void tst_GameReader::theFingerprintIsThatOfTheValues()
{
    const auto files = smallGame::files({QJsonValue()});
    auto changed = files;
    changed.insert(QStringLiteral("data/Items.json"), QJsonArray());
    QCOMPARE(read(files)->fingerprint, read(files)->fingerprint);
    QVERIFY(read(files)->fingerprint != read(changed)->fingerprint);
}

QTEST_GUILESS_MAIN(tst_GameReader)
#include "tst_GameReader.moc"
