#include "SomeWays.h"

using namespace SomeWays;

namespace {

constexpr auto kOpen = "action,play,open";
constexpr auto kClose = "action,play,close";
/// All of the screen, and one corner of it.
constexpr QRect kWhole(0, 0, 4000, 4000);
constexpr QRect kCorner(0, 0, 50, 50);

ControlSpot wayOut()
{
    return {str("play"), ControlSpot::dismiss()};
}

/// A game that lies over this part of the screen; none runs where there is no such part.
QVector<Activity> game(const std::optional<QRect> &rect)
{
    const Way end{wayOut(), str("click"), str("play"), Does::kCloses, str("play"), false};
    return {{str("play"), rect.has_value(), rect.value_or(QRect()), end}};
}

QString lookItem(int id, const char *condition = "click,")
{
    return QStringLiteral(
               R"("id":%1,"x":-9999,"y":-9999,"windowKey":"MainWindow","condition":"%2","icon":"eye")")
        .arg(id)
        .arg(str(condition));
}

} // namespace

/// A game that is tried out beside a lesson, where the learner did not play it as the lesson has it.
class tst_Activities : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aGameAboveTheControlIsToBeEnded();
    void inPlaceOfNextAsWell();
    void besideTheControlItHindersNobody();
    void aStepThatWaitsForItsEndIsNotHinderedByIt();
    void whatCountsCountsBelowItToo();
    void aGameThatEndedTooEarlyIsBegunAgain();
    void inTheDialogItWasBegunFrom();
    void whereTheLessonBeganNoneNothingIsSaid();
    void theEditorEndsTheGameBeforeItDoesTheStep();
    void theEditorPlaysAndEndsAGameThatEndedTooEarly();

private:
    static void tell(Played *played, const std::optional<QRect> &rect)
    {
        played->editor.m_activities = game(rect);
        Q_EMIT played->editor.viewChanged();
        played->turn();
    }
};

void tst_Activities::aGameAboveTheControlIsToBeEnded()
{
    Played played;
    played.editor.m_activities = game({});
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps"));
    played.play({Played::item(1, "MainWindow", "list,1")});
    QVERIFY(!played.session.isAstray());
    tell(&played, kWhole);
    QVERIFY(played.session.isAstray());
    QCOMPARE(played.session.wayBack()->by, wayOut());
    QVERIFY(!played.session.canPutBack());
    QVERIFY2(played.lastTold().contains(str("|use ")), qPrintable(played.lastTold()));
    // A dialog has come above it.
    tell(&played, QRect());
    QVERIFY(!played.session.isAstray());
    tell(&played, kWhole);
    QVERIFY(played.session.isAstray());
    tell(&played, {});
    QVERIFY(!played.session.isAstray());
    QVERIFY(played.lastTold().contains(str("|Hint|")));
}

void tst_Activities::inPlaceOfNextAsWell()
{
    Played played;
    played.editor.m_activities = game(kWhole);
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps"));
    played.play({Played::item(1, "MainWindow", "click,", "eye"), QStringLiteral(R"("id":2)")});
    QVERIFY(played.session.isAstray());
    QVERIFY2(played.lastTold().endsWith(str("|0")), qPrintable(played.lastTold()));
    played.session.receive(str("next"));
    QCOMPARE(played.id(), 1);
    tell(&played, {});
    played.session.receive(str("next"));
    QCOMPARE(played.id(), 2);
}

void tst_Activities::besideTheControlItHindersNobody()
{
    Played played;
    played.editor.m_activities = game(kCorner);
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps"));
    played.play({Played::item(1, "MainWindow", "list,1"), lookItem(2)});
    QVERIFY(!played.session.isAstray());
    tell(&played, kWhole);
    played.session.skipStep();
    played.turn();
    // Where the step points nowhere there is nothing that it could hide.
    tell(&played, kWhole);
    QCOMPARE(played.id(), 2);
    QVERIFY(!played.session.isAstray());
}

void tst_Activities::aStepThatWaitsForItsEndIsNotHinderedByIt()
{
    Played played;
    played.editor.m_activities = game(kWhole);
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps"));
    played.play({Played::item(1, "MainWindow", kClose)});
    QVERIFY(!played.session.isAstray());
}

void tst_Activities::whatCountsCountsBelowItToo()
{
    Played played;
    played.editor.m_activities = game(kWhole);
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps"));
    played.play({Played::item(1, "MainWindow", "list,1"), lookItem(2)});
    QVERIFY(played.session.isAstray());
    played.use("MainWindow", "maps");
    played.editor.report(str("list"), str("1"));
    QCOMPARE(played.id(), 2);
}

void tst_Activities::aGameThatEndedTooEarlyIsBegunAgain()
{
    Played played;
    played.editor.m_activities = game({});
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "play"));
    played.play(
        {Played::item(1, "MainWindow", kOpen), lookItem(2), lookItem(3), lookItem(4, kClose), lookItem(5)});
    played.use("MainWindow", "play");
    played.editor.m_activities = game(kWhole);
    played.editor.report(str("action"), str("play"), str("open"));
    QCOMPARE(played.id(), 2);
    // Escape was pressed too soon.
    played.editor.m_cause = {};
    played.editor.m_activities = game({});
    played.editor.report(str("action"), str("play"), str("close"));
    played.turn();
    QCOMPARE(played.id(), 2);
    QVERIFY(!played.session.isAstray());
    played.session.receive(str("next"));
    played.turn();
    played.session.receive(str("next"));
    played.turn();
    QCOMPARE(played.id(), 4);
    QVERIFY(played.session.isAstray());
    QCOMPARE(played.session.wayBack()->by, Played::spot("MainWindow", "play"));
    // The arrow is there, though the step points nowhere.
    QVERIFY(played.session.bubbleTarget());
    played.use("MainWindow", "play");
    played.editor.m_activities = game(kWhole);
    played.editor.report(str("action"), str("play"), str("open"));
    played.turn();
    QVERIFY(!played.session.isAstray());
    QCOMPARE(played.id(), 4);
    played.editor.m_activities = game({});
    played.editor.report(str("action"), str("play"), str("close"));
    QCOMPARE(played.id(), 5);
}

void tst_Activities::inTheDialogItWasBegunFrom()
{
    Played played;
    played.editor.m_ways = {way("MainWindow", "troops", "click", "MainWindow", Does::kOpens, "Trial")};
    played.editor.m_activities = game({});
    played.editor.m_controls.insert(str("Trial"), Played::spot("Trial", "start"));
    played.editor.open(str("Trial"));
    played.play({Played::item(1, "Trial", kOpen), lookItem(2, kClose)});
    played.use("Trial", "start");
    played.editor.m_activities = game(kWhole);
    played.editor.report(str("action"), str("play"), str("open"));
    played.turn();
    QCOMPARE(played.id(), 2);
    tell(&played, {});
    QCOMPARE(played.session.wayBack()->by, Played::spot("Trial", "start"));
    played.use("Trial", "cancel");
    played.editor.close(str("Trial"));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, Played::spot("MainWindow", "troops"));
    played.use("MainWindow", "troops");
    played.editor.open(str("Trial"));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, Played::spot("Trial", "start"));
}

void tst_Activities::whereTheLessonBeganNoneNothingIsSaid()
{
    Played played;
    played.editor.m_activities = game({});
    played.play({lookItem(1, kClose)});
    QVERIFY(!played.session.isAstray());
}

void tst_Activities::theEditorEndsTheGameBeforeItDoesTheStep()
{
    Played played;
    played.editor.m_activities = game(kWhole);
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps"));
    played.play({Played::item(1, "MainWindow", "list,1"), lookItem(2)});
    played.session.skipStep();
    QCOMPARE(played.editor.m_performed.size(), 2);
    QCOMPARE(played.editor.m_performed.first().spot, wayOut());
    QCOMPARE(played.editor.m_performed.last().spot, Played::spot("MainWindow", "maps"));
    QCOMPARE(played.id(), 2);
}

void tst_Activities::theEditorPlaysAndEndsAGameThatEndedTooEarly()
{
    Played played;
    played.editor.m_activities = game({});
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "play"));
    played.play({Played::item(1, "MainWindow", kOpen), lookItem(2, kClose), lookItem(3)});
    played.use("MainWindow", "play");
    played.editor.report(str("action"), str("play"), str("open"));
    played.turn();
    QCOMPARE(played.id(), 2);
    QVERIFY(played.session.isAstray());
    played.session.skipStep();
    QCOMPARE(played.editor.m_performed.first().spot, Played::spot("MainWindow", "play"));
    QCOMPARE(played.editor.m_performed.last().kind, ControlUse::Kind::kEnd);
    QCOMPARE(played.id(), 3);
}

QTEST_GUILESS_MAIN(tst_Activities)
#include "tst_Activities.moc"
