#include "SamplePlay.h"
#include "SmallGame.h"

#include <QFile>
#include <QTest>

/// The sample project is played by script: the whole game in its last step, and each earlier step along what
/// the lesson before it made.
class tst_SamplePlayed : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromTitleToEnd_data();
    void fromTitleToEnd();
    void everyStepAlongItsLesson_data();
    void everyStepAlongItsLesson();
    void theWardenCanBeBeaten();
    void theSameRunTwice();
    void aScriptThatExpectsOtherwiseFails_data();
    void aScriptThatExpectsOtherwiseFails();
};

namespace {

QString fullScript()
{
    QFile file(QStringLiteral(TUTORIAL_SOURCE_DIR "/tests/unit/practice/player/run/step19.txt"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

void tst_SamplePlayed::fromTitleToEnd_data()
{
    QTest::addColumn<quint64>("seed");
    for (const quint64 seed : {Q_UINT64_C(1), Q_UINT64_C(2), Q_UINT64_C(12345)}) {
        QTest::newRow(qPrintable(QStringLiteral("seed %1").arg(seed))) << seed;
    }
}

void tst_SamplePlayed::fromTitleToEnd()
{
    QFETCH(quint64, seed);
    player::GameSettings settings;
    settings.seed = seed;
    sample::Play play(sample::gameFiles(sample::readStep(sample::kLastStep), QStringLiteral("en_US")),
                      settings);
    const QString script = fullScript();
    QVERIFY(script.size() > 1000);
    QCOMPARE(play.run(script), QString());
    QVERIFY(play.said().size() > 70);
}

void tst_SamplePlayed::everyStepAlongItsLesson_data()
{
    QTest::addColumn<int>("step");
    QTest::addColumn<QString>("script");
    const auto add = [](int step, const char *what, const char *script) {
        QTest::newRow(qPrintable(QStringLiteral("step %1: %2").arg(step).arg(QLatin1String(what))))
            << step << QString::fromUtf8(script);
    };
    add(2, "the village", "ask 13 13\nexpect message \"Travelers are welcome.\"\ngo on");
    add(3, "a person on the map", "ask 9 9\nexpect speaker Pip\nexpect message \"Good morning\"\ngo on");
    add(4, "doors and treasure chests",
        "walk to 5 6\nexpect map 3\nask 9 2\nexpect message \"Mila found a herb!\"\ngo on\nexpect item 1 = "
        "1\n"
        "ask 9 2\nexpect message \"The chest is empty.\"\ngo on\nask 2 2\ngo on\nexpect item 2 = 1\nwalk to "
        "5 8\nexpect map 1");
    add(5, "event pages",
        "ask 9 9\nexpect message \"Good morning\"\ngo on\nwalk to 5 6\nask 9 2\ngo on\nexpect switch 2 "
        "on\nwalk to 5 8\n"
        "ask 9 9\nexpect message \"Keep it for the road.\"\ngo on");
    add(6, "a conversation with choices",
        "ask 12 4\nexpect choices \"Yes\" \"Not yet\"\nchoose \"Yes\"\ngo on\nexpect switch 3 on\nask 12 4\n"
        "expect message \"We are counting on you.\"\ngo on\nask 8 8\ngo on\nexpect party 1 2\nwalk to 8 "
        "8\nexpect at 8 8");
    add(7, "the hero and the database",
        "expect name 1 Mila\nexpect level 1 = 1\npress menu\nexpect panel menu");
    add(8, "a town with a shop and an inn",
        "give gold 20\nwalk to 16 6\nask 6 3\nchoose \"Buy\"\nchoose 1\npress act\nexpect item 1 = 1\npress "
        "cancel\nwait 2\npress cancel\nwait\n"
        "walk to 6 9\nwalk to 16 12\nask 4 2\nchoose \"Stay\"\nexpect message \"Did you sleep well?\"\ngo "
        "on");
    add(9, "traveling between maps",
        "walk to 11 15\nexpect map 2\nask 16 10\ngo on\nexpect music spring\nwalk to 12 15\nexpect map 7\n"
        "walk to 10 13\nexpect map 2\nwalk to 12 0\nexpect map 1");
    add(10, "switches and variables",
        "place 7 8 10\nask 9 5\nexpect message \"The gate is shut.\"\ngo on\nask 6 7\nchoose \"Pull\"\ngo "
        "on\n"
        "expect switch 4 on\nexpect variable 1 = 1\nwalk to 9 5\nexpect map 8");
    add(11, "music and backdrops", "expect music village");
    add(12, "guards on patrol",
        "ask event 11\nexpect message \"Halt! Who goes there?\"\ngo on\nplace 7 8 10\nask event 7\nexpect "
        "message "
        "\"Halt!\"\ngo on");
    add(13, "a walk through the database", "join 3\nexpect party 1 3\nexpect level 3 = 2");
    add(14, "items, weapons and armor",
        "give gold 500\nwalk to 16 6\nask 6 3\nchoose \"Buy\"\nchoose 1\npress act\nexpect item 1 = 1");
    // To and fro, a step at a time.
    const QByteArray steps = QByteArray("press left 10\npress right 10\n").repeated(20);
    add(15, "enemies and random encounters",
        ("encounters on\nplace 2 12 1\n" + steps + "expect battle\nfight\nexpect exp 1 > 0").constData());
    add(16, "classes, skills and traits", "join 3\nexpect mp 3 > 20");
    add(17, "the boss battle",
        "join 2\njoin 3\nlevel 1 9\nlevel 2 9\nlevel 3 9\nplace 5 6 8\nask 4 2\nchoose 1\ngo on\n"
        "place 8 20 5\nask 20 3\ngo on\nfight\nexpect battle won\ngo on\nexpect switch 5 on\nexpect item 6 = "
        "1\nask 20 3\n"
        "expect message \"Only stones are left.\"");
    add(18, "troops and battle events", "place 8 20 5\nask 20 3\ngo on\nexpect battle\nexpect enemies 2 6 2");
    add(19, "a cut scene",
        "set switch 5 on\ngive item 6\nwalk to 0 8\nexpect map 6\ngo on\nexpect switch 6 on\nexpect item 6 = "
        "0");
}

void tst_SamplePlayed::everyStepAlongItsLesson()
{
    QFETCH(int, step);
    QFETCH(QString, script);
    player::GameSettings settings;
    sample::Play play(sample::gameFiles(sample::readStep(step), QStringLiteral("en_US")), settings);
    const QString start = QStringLiteral("encounters off\nnew game\ngo on\nexpect switch 1 on\n");
    QCOMPARE(play.run(start + script + QStringLiteral("\nexpect no problems")), QString());
}

void tst_SamplePlayed::theWardenCanBeBeaten()
{
    player::GameSettings settings;
    sample::Play play(sample::gameFiles(sample::readStep(sample::kLastStep), QStringLiteral("en_US")),
                      settings);
    QCOMPARE(play.run(QStringLiteral("encounters off\nnew game\ngo on\njoin 2\njoin 3")), QString());
    player::GameState &state = play.game().state();
    const player::GameData &data = play.game().data();
    // Somebody who has fought her way through the mine, and was in the shop.
    for (const int id : {1, 2, 3}) {
        player::Actor *const actor = state.actor(id, data);
        actor->changeLevel(9, data);
        state.addGoods(player::Goods::kWeapon, 3, 1);
        state.addGoods(player::Goods::kArmor, 3, 1);
        QVERIFY(state.equip(actor, player::Goods::kWeapon, 3, data));
        QVERIFY(state.equip(actor, player::Goods::kArmor, 3, data));
        actor->recoverAll(data);
    }
    QCOMPARE(play.run(QStringLiteral("place 8 20 5\nask 20 3\ngo on\nfight\ngo on\nexpect switch 5 on\n"
                                     "expect item 6 = 1\nexpect gold > 100\nexpect no problems")),
             QString());
}

void tst_SamplePlayed::theSameRunTwice()
{
    const auto played = [](quint64 seed) {
        player::GameSettings settings;
        settings.seed = seed;
        sample::Play play(sample::gameFiles(sample::readStep(sample::kLastStep)), settings);
        const QString failure = play.run(
            QStringLiteral("new game\ngo on\nplace 2 11 8\npress right 60\npress left 60\npress down 20"));
        return failure +
               QString::fromUtf8(QJsonDocument(play.game().state().toJson(play.game().data())).toJson());
    };
    QCOMPARE(played(7), played(7));
    QVERIFY(played(7) != played(8));
}

void tst_SamplePlayed::aScriptThatExpectsOtherwiseFails_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("said");
    const auto add = [](const char *line, const char *said) {
        QTest::newRow(line) << QString::fromUtf8(line) << QString::fromUtf8(said);
    };
    add("expect switch 9 on", "FAILED: expect switch 9 on; seen: off");
    add("expect variable 1 = 5", "seen: 0");
    add("expect gold > 5", "seen: 0");
    add("expect item 1 = 1", "seen: 0");
    add("expect map 2", "seen: 1");
    add("expect at 1 1", "seen: 2 1");
    add("expect party 2", "seen: 1");
    add("expect message Hello", "seen: nothing");
    add("expect choices a b", "seen: ");
    add("expect music other", "seen: village");
    add("expect problem x", "seen: no problem");
    add("expect switch 1 maybe", "neither");
    add("walk to 0 9", "no way");
    add("ask 5 5", "seen: there is no way");
    add("press somewhere", "there is no key");
    add("choose 1", "seen: nothing");
    add("enter 5", "no number is asked for");
    add("win battle", "there is no battle");
    add("dance", "nobody knows what to do: dance");
    add("expect message \"open", "a quotation mark is not closed");
}

void tst_SamplePlayed::aScriptThatExpectsOtherwiseFails()
{
    QFETCH(QString, line);
    QFETCH(QString, said);
    sample::Play play(smallGame::filesWith(R"({"code":108,"indent":0,"parameters":[]})"), smallGame::onMap());
    const QString failure = play.run(line);
    QVERIFY2(failure.contains(said), qPrintable(failure));
}

QTEST_GUILESS_MAIN(tst_SamplePlayed)
#include "tst_SamplePlayed.moc"
