#include "SessionFixture.h"

namespace {

const char *const kNew = "NewProject";

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

/// A dialog in which a name is to be typed, then Next, then OK, which opens another window.
QStringList steps()
{
    return {Played::item(1, kNew, "click,", "keyboard"), Played::item(2, kNew, "windowState,Copying,open"),
            Played::item(3, "Copying", "windowState,Copying,close", "wait"), QStringLiteral(R"("id":4)")};
}

void begin(Played *played)
{
    played->editor.m_controls.insert(str(kNew), Played::spot(kNew, "ok"));
    played->editor.open(str(kNew));
    played->play(steps());
}

/// The dialog closes and the other window opens.
void press(Played *played, const char *control)
{
    played->use(kNew, control);
    played->editor.close(str(kNew));
    played->editor.open(str("Copying"));
    played->turn();
}

} // namespace

/// A learner who does what comes next without pressing Next.
class tst_RunningAhead : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesTheStepThatOnlyWaitsForNext();
    void goesBackToTheStepBeforeBoth();
    void anotherControlIsAWrongMove();
    void whatCameAboutByItselfIsNoStep();
    void onlyTheStepDirectlyBehindIsDone();
    void notWhileAstray();
    void notWhereItMeansSomethingElse();
    void followsTheJumpOfTheStep();
    void asksForTheFilesOfAStepThatIsPassed();
};

void tst_RunningAhead::passesTheStepThatOnlyWaitsForNext()
{
    Played played;
    begin(&played);
    QCOMPARE(played.id(), 1);
    press(&played, "ok");
    QCOMPARE(played.id(), 3);
    QVERIFY(!played.session.isAstray());
    QVERIFY(!played.session.canPutBack());
}

void tst_RunningAhead::goesBackToTheStepBeforeBoth()
{
    Played played;
    begin(&played);
    press(&played, "ok");
    played.session.back();
    played.turn();
    QCOMPARE(played.id(), 1);
    QCOMPARE(played.editor.m_stack, (QStringList{str("MainWindow"), str(kNew)}));
    QVERIFY(!played.session.isAstray());
}

void tst_RunningAhead::anotherControlIsAWrongMove()
{
    Played played;
    begin(&played);
    press(&played, "cancel");
    QCOMPARE(played.id(), 1);
    QVERIFY(played.session.isAstray());
}

void tst_RunningAhead::whatCameAboutByItselfIsNoStep()
{
    Played played;
    begin(&played);
    played.editor.m_cause = ControlSpot();
    played.editor.open(str("Copying"));
    played.turn();
    QCOMPARE(played.id(), 1);
}

void tst_RunningAhead::onlyTheStepDirectlyBehindIsDone()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 1));
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "click,"),
                 Played::item(3, "MainWindow", "list,1"), QStringLiteral(R"("id":4)")});
    played.use("MainWindow", "maps", 1);
    played.editor.report(str("list"), str("1"));
    played.turn();
    QCOMPARE(played.id(), 1);
    played.session.receive(str("next"));
    played.turn();
    played.editor.report(str("list"), str("1"));
    QCOMPARE(played.id(), 4);
}

void tst_RunningAhead::notWhileAstray()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 1));
    played.editor.m_ways = {
        {Played::spot(kNew, "cancel"), str("click"), str(kNew), Way::Does::kCloses, str(kNew), true}};
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "list,1"),
                 QStringLiteral(R"("id":3)")});
    played.editor.open(str(kNew));
    played.turn();
    QVERIFY(played.session.isAstray());
    played.use("MainWindow", "maps", 1);
    played.editor.report(str("list"), str("1"));
    QCOMPARE(played.id(), 1);
}

void tst_RunningAhead::notWhereItMeansSomethingElse()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "tiles", 1));
    played.editor.m_meanings.insert(str("tiles"), str("Water"));
    // The first step points nowhere, so nobody strays from it.
    played.play({QStringLiteral(R"("id":1,"x":-9999,"y":-9999,"windowKey":"","condition":"click,")"),
                 Played::item(2, "MainWindow", "list,1"), QStringLiteral(R"("id":3)")});
    played.editor.m_meanings.insert(str("tiles"), str("Rock"));
    played.use("MainWindow", "tiles", 1);
    played.editor.report(str("list"), str("1"));
    QCOMPARE(played.id(), 1);
    played.editor.m_meanings.insert(str("tiles"), str("Water"));
    played.editor.report(str("list"), str("1"));
    QCOMPARE(played.id(), 3);
}

void tst_RunningAhead::followsTheJumpOfTheStep()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 1));
    played.play({Played::item(1, "MainWindow", "click,") + str(R"(,"jump":3)"),
                 Played::item(2, "MainWindow", "list,7"),
                 Played::item(3, "MainWindow", "list,1") + str(R"(,"jump":5)"), QStringLiteral(R"("id":4)"),
                 QStringLiteral(R"("id":5)")});
    played.use("MainWindow", "maps", 1);
    played.editor.report(str("list"), str("7"));
    QCOMPARE(played.id(), 1);
    played.editor.report(str("list"), str("1"));
    QCOMPARE(played.id(), 5);
}

void tst_RunningAhead::asksForTheFilesOfAStepThatIsPassed()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 1));
    played.play({Played::item(1, "MainWindow", "click,"),
                 Played::item(2, "MainWindow", "list,1") + str(R"(,"command":"presetData,step2")"),
                 QStringLiteral(R"("id":3)")});
    played.use("MainWindow", "maps", 1);
    played.editor.report(str("list"), str("1"));
    QCOMPARE(played.id(), 3);
    QVERIFY(played.told.contains(str("requestPresetData|step2")));
}

QTEST_GUILESS_MAIN(tst_RunningAhead)
#include "tst_RunningAhead.moc"
