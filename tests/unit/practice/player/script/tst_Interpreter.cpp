#include "SmallGame.h"

#include <QElapsedTimer>
#include <QTest>

/// Hostile lists of commands, and events beside the game: nothing hangs, and nothing is lost.
class tst_Interpreter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLoopWithoutAnEndIsNamedAndTheGameGoesOn();
    void aCommonEventThatCallsItselfIsNamed();
    void anEventThatBeginsByItselfForEverIsNamed();
    void eventsBesideTheGameRunOnAndStopWithTheirPage();
    void twoEventsTalkOneAfterTheOther();
    void aBrokenListEndsByItself_data();
    void aBrokenListEndsByItself();
    void aRouteThatIsBlockedIsNamed_data();
    void aRouteThatIsBlockedIsNamed();
    void aWaitForEverEnds();
    void aFaceOfOnePictureHasNoNumber();
};

namespace {

bool hasProblem(sample::Play &play, const char *text)
{
    for (const player::Problem &problem : play.hand().problems()) {
        if (problem.text.contains(QLatin1String(text))) {
            return true;
        }
    }
    return false;
}

} // namespace

void tst_Interpreter::aLoopWithoutAnEndIsNamedAndTheGameGoesOn()
{
    const QByteArray loop = R"({"code":112,"indent":0,"parameters":[]},
        {"code":122,"indent":1,"parameters":[1,1,1,0,1]},{"code":0,"indent":1,"parameters":[]},
        {"code":413,"indent":0,"parameters":[]})";
    sample::Play play(smallGame::filesWith(loop), smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("ask 3 1\nwait 60")), QString());
    QVERIFY(hasProblem(play, "loop without an end"));
    // It goes on in each tick, and is told once.
    QVERIFY(play.hand().state().variable(1) > 10000);
    QCOMPARE(play.hand().problems().size(), 1);
}

void tst_Interpreter::aCommonEventThatCallsItselfIsNamed()
{
    auto files = smallGame::filesWith(
        R"({"code":117,"indent":0,"parameters":[1]},{"code":121,"indent":0,"parameters":[1,1,0]})");
    files.insert(QStringLiteral("data/CommonEvents.json"),
                 smallGame::json(R"([null,{"id":1,"name":"","trigger":0,"switchId":0,"list":[
                     {"code":117,"indent":0,"parameters":[1]},{"code":0,"indent":0,"parameters":[]}]}])"));
    sample::Play play(files, smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("ask 3 1\nexpect switch 1 on")), QString());
    QVERIFY(hasProblem(play, "call one another"));
}

void tst_Interpreter::anEventThatBeginsByItselfForEverIsNamed()
{
    const QJsonArray list = smallGame::json(R"([{"code":230,"indent":0,"parameters":[1]},
                                                {"code":0,"indent":0,"parameters":[]}])")
                                .toArray();
    sample::Play play(smallGame::files({QJsonValue(), smallGame::event(1, 3, 1, list, 3)}),
                      smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("wait 200")), QString());
    QVERIFY(hasProblem(play, "begins by itself again and again"));
}

void tst_Interpreter::eventsBesideTheGameRunOnAndStopWithTheirPage()
{
    const QJsonArray list = smallGame::json(R"([{"code":122,"indent":0,"parameters":[1,1,1,0,1]},
        {"code":230,"indent":0,"parameters":[10]},{"code":0,"indent":0,"parameters":[]}])")
                                .toArray();
    QJsonObject event = smallGame::event(1, 5, 3, list, 4);
    QJsonArray pages = event.value(QLatin1String("pages")).toArray();
    pages.append(smallGame::json(R"({"conditions":{"variableId":1,"variableValue":5},"image":"","trigger":0,
                                     "list":[{"code":0,"indent":0,"parameters":[]}]})"));
    event.insert(QStringLiteral("pages"), pages);
    sample::Play play(smallGame::files({QJsonValue(), event}), smallGame::onMap());
    // The hero walks meanwhile.
    QCOMPARE(play.run(QStringLiteral("walk to 7 1\nwait 200\nexpect variable 1 = 5")), QString());
    QVERIFY(play.hand().problems().isEmpty());
}

void tst_Interpreter::twoEventsTalkOneAfterTheOther()
{
    const auto asks = [](int id, int x, int number) {
        const QString list = QStringLiteral(
                                 R"([{"code":102,"indent":0,"parameters":[["A%1","B%1"],-1,0,2,0]},
                {"code":402,"indent":0,"parameters":[0,"A%1"]},{"code":0,"indent":1,"parameters":[]},
                {"code":402,"indent":0,"parameters":[1,"B%1"]},{"code":121,"indent":1,"parameters":[%1,%1,0]},
                {"code":0,"indent":1,"parameters":[]},{"code":404,"indent":0,"parameters":[]},
                {"code":209,"indent":0,"parameters":[]},{"code":0,"indent":0,"parameters":[]}])")
                                 .arg(number);
        return smallGame::event(id, x, 4, smallGame::json(list.toUtf8()).toArray(), 4);
    };
    sample::Play play(smallGame::files({QJsonValue(), asks(1, 4, 1), asks(2, 6, 2)}), smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("expect choices A1 B1\nchoose B1\nexpect choices A2 B2\nchoose A2\n"
                                     "wait\nexpect switch 1 on\nexpect switch 2 off\nexpect no problems")),
             QString());
}

void tst_Interpreter::aBrokenListEndsByItself_data()
{
    QTest::addColumn<QByteArray>("commands");
    QTest::newRow("a loop that has no end") << QByteArray(R"({"code":112,"indent":0,"parameters":[]})");
    QTest::newRow("an end of a loop that has not begun")
        << QByteArray(R"({"code":413,"indent":0,"parameters":[]})");
    QTest::newRow("an else without a condition") << QByteArray(R"({"code":411,"indent":0,"parameters":[]})");
    QTest::newRow("branches without a question") << QByteArray(
        R"({"code":402,"indent":0,"parameters":[0,"x"]},{"code":601,"indent":0,"parameters":[]})");
    QTest::newRow("parameters of other types") << QByteArray(
        R"({"code":101,"indent":0,"parameters":[[],{},"x",null,7]},{"code":122,"indent":0,"parameters":["a","b"]},
                         {"code":205,"indent":0,"parameters":[-1,"x"]},{"code":241,"indent":0,"parameters":["x"]})");
    QTest::newRow("no parameters at all")
        << QByteArray(R"({"code":201,"indent":0},{"code":111,"indent":0},{"code":102,"indent":0},
                         {"code":302,"indent":0},{"code":231,"indent":0},{"code":336,"indent":0})");
    QTest::newRow("indents that make no sense") << QByteArray(
        R"({"code":111,"indent":7,"parameters":[0,1,0]},{"code":121,"indent":-9,"parameters":[2,2,0]})");
    QTest::newRow("entries that are no commands") << QByteArray(R"(null,[],"x",17,{"code":108,"indent":0})");
}

void tst_Interpreter::aBrokenListEndsByItself()
{
    QFETCH(QByteArray, commands);
    sample::Play play(smallGame::filesWith(commands), smallGame::onMap());
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(play.run(QStringLiteral("ask 3 1\ngo on")), QString());
    QVERIFY(timer.elapsed() < 10000);
}

void tst_Interpreter::aRouteThatIsBlockedIsNamed_data()
{
    QTest::addColumn<int>("who");
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("waits");
    QTest::newRow("the hero stands in the way of the event") << 0 << 2 << true;
    QTest::newRow("nobody waits for the event") << 0 << 2 << false;
    // Who cannot get on can do nothing else either.
    QTest::newRow("the event stands in the way of the hero") << -1 << 3 << false;
}

void tst_Interpreter::aRouteThatIsBlockedIsNamed()
{
    QFETCH(int, who);
    QFETCH(int, direction);
    QFETCH(bool, waits);
    const QString route = QStringLiteral(
                              R"({"code":108,"indent":0,"parameters":[]},
            {"code":205,"indent":0,"parameters":[%1,{"list":[{"code":%2},{"code":0}],"repeat":false,"skippable":false,"wait":%3}]})")
                              .arg(who)
                              .arg(direction)
                              .arg(waits ? QStringLiteral("true") : QStringLiteral("false"));
    sample::Play play(smallGame::filesWith(route.toUtf8()), smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("ask 3 1\nwait 400")), QString());
    QVERIFY(hasProblem(play, "in the way"));
    const player::Problem problem = play.hand().problems().constFirst();
    QCOMPARE(problem.toString().section(QLatin1Char(':'), 0, 0),
             QStringLiteral("data/Map001.json, event 1, page 1, line 2"));
}

void tst_Interpreter::aWaitForEverEnds()
{
    sample::Play play(smallGame::filesWith(R"({"code":230,"indent":0,"parameters":[2000000000]},
        {"code":121,"indent":0,"parameters":[1,1,0]})"),
                      smallGame::onMap());
    QCOMPARE(
        play.run(QStringLiteral("ask 3 1\nwait 35900\nexpect switch 1 off\nwait 200\nexpect switch 1 on")),
        QString());
    QVERIFY(hasProblem(play, "2000000000 frames"));
}

void tst_Interpreter::aFaceOfOnePictureHasNoNumber()
{
    sample::Play play(smallGame::filesWith(R"({"code":101,"indent":0,"parameters":["mila",3,0,2]},
        {"code":401,"indent":0,"parameters":["Hello"]})"),
                      smallGame::onMap());
    QCOMPARE(play.run(QStringLiteral("ask 3 1\nexpect message Hello\nexpect face mila\ngo on")), QString());
    QVERIFY(hasProblem(play, "number 3"));
}

QTEST_GUILESS_MAIN(tst_Interpreter)
#include "tst_Interpreter.moc"
