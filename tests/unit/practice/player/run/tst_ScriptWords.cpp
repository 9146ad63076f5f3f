#include "SmallGame.h"

#include <QTest>

/// What a script can say: each row is true of one game and not of another.
class tst_ScriptWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsExpectedIsSeen_data();
    void whatIsExpectedIsSeen();
    void whatIsOtherwiseFails_data();
    void whatIsOtherwiseFails();
    void onePageIsRead();
    void aLineThatNothingKnowsIsToldBeforehand();
};

namespace {

/// Event 1 says this and that, and what follows.
const QByteArray kTalk = R"({"code":101,"indent":0,"parameters":["mila",0,0,2,"Pip"]},
    {"code":401,"indent":0,"parameters":["One"]},
    {"code":101,"indent":0,"parameters":["",0,0,2]},
    {"code":401,"indent":0,"parameters":["Two"]},
    {"code":102,"indent":0,"parameters":[["a","b","c"],-1]},
    {"code":404,"indent":0,"parameters":[]})";
const QByteArray kBalloon = R"({"code":208,"indent":0,"parameters":[-1,3,false]})";

QString played(const QByteArray &commands, const QString &script)
{
    sample::Play play(smallGame::filesWith(commands), smallGame::onMap());
    return play.run(script);
}

void addRow(const char *name, const QByteArray &commands, const char *script)
{
    QTest::newRow(name) << commands << QString::fromUtf8(script);
}

} // namespace

void tst_ScriptWords::whatIsExpectedIsSeen_data()
{
    QTest::addColumn<QByteArray>("commands");
    QTest::addColumn<QString>("script");
    const QByteArray nothing = R"({"code":108,"indent":0,"parameters":[]})";
    addRow("a message", kTalk, "ask event 1\nexpect message\nexpect speaker\nexpect speaker Pip");
    addRow("a face", kTalk, "ask event 1\nexpect face mila");
    addRow("choices by their number", kTalk,
           "ask event 1\nread\nread\nexpect choices = 3\nexpect choices a b c");
    addRow("an event", nothing,
           "expect event 1\nexpect no event 2\nexpect event 1 at 3 1\nexpect event 1 looks child\nexpect "
           "event 1 page 1\nexpect event 2 page 0");
    addRow("an event elsewhere", nothing, "expect event 1 not at 3 2");
    addRow("the hero", nothing, "wait 2\nexpect hero looks mila");
    addRow("a member", nothing, "expect member 1\nexpect no member 2\njoin 2\nexpect member 2");
    addRow("equipment", nothing,
           "expect weapon of 1 = 1\nexpect armor of 1 = 1\ngive weapon 2\nequip 1 weapon 2\nexpect weapon of "
           "1 = 2\n"
           "expect attack of 1 > 9\nexpect weapon 1 = 1\nexpect defense of 1 >= 2");
    addRow("an armor", nothing, "join 2\ngive armor 1\nequip 2 armor 1\nexpect armor of 2 = 1");
    addRow(
        "class and figures", nothing,
        "expect class of 1 = 1\nexpect most hp of 1 = 40\nexpect most mp of 1 = 10\nexpect agility of 1 > 0");
    addRow("skills by level", nothing,
           "expect skill 1 1 on\nexpect skill 1 2 off\nlevel 1 3\nexpect level 1 = 3\nexpect skill 1 2 on");
    addRow("a battle that is won", nothing,
           "battle 1\nexpect battle\nexpect troop 1\nexpect enemies 1\nexpect backdrop meadow\nfight\nexpect "
           "battle won");
    addRow("one that is lost", nothing, "battle 1\nlose battle\nexpect battle lost");
    addRow("one that is fled from", nothing, "battle 1\nflee battle\nexpect battle fled\nexpect map 1");
    addRow("a balloon", kBalloon, "ask event 1\nexpect balloon 3");
}

void tst_ScriptWords::whatIsExpectedIsSeen()
{
    QFETCH(QByteArray, commands);
    QFETCH(QString, script);
    QCOMPARE(played(commands, script + QStringLiteral("\nexpect no problems")), QString());
}

void tst_ScriptWords::whatIsOtherwiseFails_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("said");
    const auto add = [](const char *script, const char *said) {
        QTest::newRow(script) << QString::fromUtf8(script) << QString::fromUtf8(said);
    };
    add("expect message", "seen: nothing");
    add("expect speaker", "seen: nothing");
    add("expect face mila", "seen: no message");
    add("expect choices = 1", "seen: ");
    add("expect event 2", "seen: not there");
    add("expect no event 1", "seen: 3 1");
    add("expect event 1 at 4 1", "seen: 3 1");
    add("expect event 1 not at 3 1", "seen: 3 1");
    add("expect event 1 looks mila", "seen: child");
    add("expect event 2 looks mila", "seen: not there");
    add("expect event 1 page 2", "seen: 1");
    add("expect hero looks toma", "seen: mila");
    add("expect member 2", "seen: 1");
    add("expect no member 1", "seen: 1");
    add("expect weapon of 1 = 2", "seen: 1");
    add("expect weapon of 2 = 2", "seen: -1");
    add("expect attack of 1 > 99", "seen: ");
    add("expect skill 1 2 on", "seen: off");
    add("expect balloon 3", "seen: none");
    add("expect animation 1", "seen: none");
    add("expect title hill", "seen: ");
    add("expect backdrop hill", "seen: ");
    add("expect battle won", "seen: nothing");
    add("expect troop 1", "seen: 0");
    add("expect enemies 1", "seen: ");
    add("give weapon 9", "the database has no weapon 9");
    add("give armor 9", "the database has no armor 9");
    add("give item 9", "the database has no item 9");
    add("equip 1 weapon 2", "the bag has no weapon 2");
    add("equip 9 weapon 2", "the database has no actor 9");
    add("level 9 2", "the database has no actor 9");
    add("level 1 20", "seen: level 10");
    add("battle 9", "the database has no troop 9");
    add("read", "no message waits to be read");
}

void tst_ScriptWords::whatIsOtherwiseFails()
{
    QFETCH(QString, script);
    QFETCH(QString, said);
    const QString failure = played(R"({"code":108,"indent":0,"parameters":[]})", script);
    QVERIFY2(failure.startsWith(QStringLiteral("line 1: FAILED: ")) && failure.contains(said),
             qPrintable(failure));
}

void tst_ScriptWords::onePageIsRead()
{
    QCOMPARE(played(kTalk, QStringLiteral("ask event 1\nread\nexpect message Two\nread\nexpect choices = 3")),
             QString());
}

void tst_ScriptWords::aLineThatNothingKnowsIsToldBeforehand()
{
    QStringList errors;
    const QVector<player::ScriptLine> lines = player::Script::read(
        QStringLiteral("expect message\ndance\nexpect item 1\nexpect item 1 = 1"), &errors);
    QCOMPARE(errors, QStringList());
    QCOMPARE(player::ScriptRunner::unknown(lines),
             (QStringList{QStringLiteral("line 2: nobody knows what to do: dance"),
                          QStringLiteral("line 3: nobody knows what to do: expect item 1")}));
}

QTEST_GUILESS_MAIN(tst_ScriptWords)
#include "tst_ScriptWords.moc"
