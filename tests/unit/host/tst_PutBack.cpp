#include "SomeWays.h"

using namespace SomeWays;

/// Data that went wrong, and another project: what is put back.
class tst_PutBack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anotherProjectIsPutBack();
    void theArrowPointsAtTheButtonThatPutsBack();
    void aStepWithoutAPlaceIsToldInTheMiddleAfterThat();
    void theDataArePutBackAfterAWrongMove();
    void whatAWrongButtonHasChangedIsPutBack();
    void whatAWrongMoveHasChosenIsPutBack_data();
    void whatAWrongMoveHasChosenIsPutBack();
    void whatTheStepAsksForIsNoOtherChoice();
    void whoChoosesAgainWhatAnEarlierStepHadHasNotStrayed();
    void anotherChoiceIsNoDamage();
    void theButtonThatTheStepPointsAtIsNoWrongOne();
    void pressedMoreOftenThanAskedItIs_data();
    void pressedMoreOftenThanAskedItIs();
    void aTaskThatChangesTheDataIsNothingToPutBack();
    void takesTheFilesOfALessonForItsOwn();
    void whatIsGoneIsPutBack();
    void aRowThatIsAnotherNowIsPutBack();
    void whatWentWrongEarlierIsPutBack();
    void anEntryThatIsGoneIsPutBack();
    void whatIsGoneFromTheStartLeadsNowhere();
    void anotherProjectCountsWhereTheStepPointsNowhere();
};

void tst_PutBack::anotherProjectIsPutBack()
{
    Played played;
    played.play({Played::item(1, "MainWindow", "list,1")});
    played.editor.m_project = str("/games/other");
    played.editor.m_data = str("other");
    played.use("MainWindow", "new");
    played.editor.report(str("action"), str("fileNew"), str("open"));
    played.turn();
    QVERIFY(played.session.isAstray());
    QVERIFY(!played.session.wayBack());
    QVERIFY(played.session.canPutBack());
    QCOMPARE(played.lastTold(), str("indicator|update|-9999|-9999|MainWindow|put it back|4|6"));
    played.session.putBack();
    QVERIFY(!played.session.isAstray());
    QCOMPARE(played.editor.m_project, str("/games/mine"));
    QCOMPARE(played.editor.m_data, str("as it was"));
    QCOMPARE(played.lastTold(), str("indicator|update|95|196|MainWindow|Hint|4|0"));
}

void tst_PutBack::theArrowPointsAtTheButtonThatPutsBack()
{
    Played played;
    played.play({Played::item(1, "MainWindow", "list,1")});
    played.editor.m_project = str("/games/other");
    played.use("MainWindow", "new");
    played.editor.report(str("action"), str("fileNew"), str("open"));
    played.turn();
    QCOMPARE(played.lastTold(), str("indicator|update|-9999|-9999|MainWindow|put it back|4|6"));
    // It comes up when the editor hears of it,
    played.editor.m_putBackSpot = QPoint(500, 900) + LessonWords::kTip;
    Q_EMIT played.editor.viewChanged();
    played.turn();
    QCOMPARE(played.lastTold(), str("indicator|update|500|900|MainWindow|put it back|4|0"));
    // and may be moved.
    played.editor.m_putBackSpot = QPoint(510, 900) + LessonWords::kTip;
    Q_EMIT played.editor.viewChanged();
    played.turn();
    QCOMPARE(played.told.constLast(), str("indicator|updateXy|510|900"));
    played.session.putBack();
    QCOMPARE(played.lastTold(), str("indicator|update|95|196|MainWindow|Hint|4|0"));
}

void tst_PutBack::aStepWithoutAPlaceIsToldInTheMiddleAfterThat()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "enemy"));
    played.editor.m_entries = 1;
    played.editor.m_putBackSpot = QPoint(500, 900) + LessonWords::kTip;
    played.play({QStringLiteral(R"("id":1,"x":-9999,"y":-9999,"windowKey":"MainWindow","hint":"Ready?")"),
                 Played::item(2, "MainWindow", "comboBox,enemy,1"), QStringLiteral(R"("id":3)")});
    const QStringList middle = played.told.filter(str("|updateXy|"));
    QCOMPARE(middle.size(), 1);
    played.session.next();
    played.turn();
    QTRY_VERIFY(played.lastTold().startsWith(str("indicator|update|500|900|")));
    played.told.clear();
    played.session.putBack();
    QCOMPARE(played.id(), 1);
    QCOMPARE(played.told.filter(str("|updateXy|")), middle);
    QVERIFY(played.lastTold().contains(str("|Ready?|")));
}

void tst_PutBack::theDataArePutBackAfterAWrongMove()
{
    Played played;
    played.editor.m_ways = someWays();
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "tiles", 1));
    played.play({Played::item(1, "MainWindow", "list,1")});
    QVERIFY(!played.session.canPutBack());
    played.use(kProperties, "ok");
    played.editor.m_data = str("a map renamed");
    played.editor.report(str("action"), str("ok"));
    QVERIFY(played.session.canPutBack());
    QVERIFY(!played.session.isAstray());
    played.use("MainWindow", "maps", 0);
    played.editor.open(str(kProperties));
    played.turn();
    played.session.putBack();
    QCOMPARE(played.editor.m_data, str("as it was"));
    QCOMPARE(played.editor.m_stack, QStringList{str("MainWindow")});
    QVERIFY(!played.session.isAstray());
    QVERIFY(!played.session.canPutBack());
    QCOMPARE(played.id(), 1);
}

void tst_PutBack::whatAWrongButtonHasChangedIsPutBack()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "moveUp"));
    played.play({Played::item(1, "MainWindow", "click,")});
    QSignalSpy changed(&played.session, &LessonSession::astrayChanged);
    // No condition waits for such a button, so no event tells of it.
    played.editor.m_data = str("a step away");
    Q_EMIT played.editor.used(Played::spot("MainWindow", "moveAway"));
    played.turn();
    QCOMPARE(changed.size(), 1);
    QVERIFY(played.session.canPutBack());
    played.session.putBack();
    QCOMPARE(played.editor.m_data, str("as it was"));
    QVERIFY(!played.session.canPutBack());
}

void tst_PutBack::whatAWrongMoveHasChosenIsPutBack_data()
{
    QTest::addColumn<QByteArray>("condition");
    QTest::newRow("a step with an event") << QByteArray("action,fileSave,");
    QTest::newRow("a click and Next") << QByteArray("click,");
}

void tst_PutBack::whatAWrongMoveHasChosenIsPutBack()
{
    QFETCH(const QByteArray, condition);
    const ControlSpot grass = Played::spot("MainWindow", "tiles", 0);
    const ControlSpot rock = Played::spot("MainWindow", "tiles", 3);
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "fileSave"));
    played.editor.m_chosen = {grass};
    played.play({Played::item(1, "MainWindow", condition.constData()), QStringLiteral(R"("id":2)")});
    QSignalSpy changed(&played.session, &LessonSession::astrayChanged);
    played.use("MainWindow", "tiles", 3);
    played.editor.m_chosen = {rock};
    played.editor.report(str("list"), str("3"));
    played.turn();
    QVERIFY(!played.session.isAstray());
    QVERIFY(played.session.canPutBack());
    QCOMPARE(changed.size(), 1);
    // Who chooses it again herself has nothing to put back.
    played.use("MainWindow", "tiles", 0);
    played.editor.m_chosen = {grass};
    played.editor.report(str("list"), str("0"));
    played.turn();
    QVERIFY(!played.session.canPutBack());
    QCOMPARE(changed.size(), 2);
}

void tst_PutBack::whatTheStepAsksForIsNoOtherChoice()
{
    Played played;
    const ControlSpot tab = Played::spot("MainWindow", "tabs", 1);
    played.editor.m_controls.insert(str("MainWindow"), tab);
    played.editor.m_chosen = {Played::spot("MainWindow", "tabs", 0), Played::spot("MainWindow", "tiles", 3)};
    played.play({Played::item(1, "MainWindow", "click,"), QStringLiteral(R"("id":2)")});
    // A wrong move that chooses nothing,
    played.use("MainWindow", "grid");
    played.editor.report(str("action"), str("grid"));
    // and the tab, behind which are other rows.
    played.use("MainWindow", "tabs", 1);
    played.editor.m_chosen = {tab, Played::spot("MainWindow", "trees", 0)};
    played.editor.report(str("tabView"), str("tabview"), str("1"));
    played.turn();
    QVERIFY(!played.session.canPutBack());
}

void tst_PutBack::whoChoosesAgainWhatAnEarlierStepHadHasNotStrayed()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "tool"));
    const auto choose = [&played](int map) {
        played.use("MainWindow", "maps", map);
        played.editor.m_chosen = {Played::spot("MainWindow", "maps", map)};
        played.editor.m_meanings.insert(str("map"), str("map %1").arg(map));
        played.editor.report(str("list"), QString::number(map));
        played.turn();
    };
    choose(0);
    played.play({Played::item(1, "MainWindow", "action,modeEvent,"),
                 Played::item(2, "MainWindow", "action,viewZoomActual,"),
                 Played::item(3, "MainWindow", "windowState,MapProperties,open"),
                 QStringLiteral(R"("id":4)")});
    played.turn();
    choose(3);
    played.use("MainWindow", "tool");
    played.editor.report(str("action"), str("modeEvent"));
    played.turn();
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "map", 7));
    played.use("MainWindow", "tool");
    played.editor.report(str("action"), str("viewZoomActual"));
    played.turn();
    QCOMPARE(played.id(), 3);
    QVERIFY(!played.session.isAstray());
    choose(0);
    QVERIFY(!played.session.isAstray());
    // From there on that is the map of the step.
    choose(3);
    QVERIFY(played.session.isAstray());
    QCOMPARE(played.session.wayBack()->by, Played::spot("MainWindow", "maps", 0));
}

void tst_PutBack::anotherChoiceIsNoDamage()
{
    const ControlSpot row = Played::spot("MainWindow", "maps", 3);
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), row);
    played.editor.m_chosen = {Played::spot("MainWindow", "tiles", 0)};
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "click,"),
                 Played::item(3, "MainWindow", "click,"), Played::item(4, "MainWindow", "list,3"),
                 QStringLiteral(R"("id":5)")});
    played.use("MainWindow", "tiles", 2);
    played.editor.m_chosen = {Played::spot("MainWindow", "tiles", 2)};
    played.editor.report(str("list"), str("2"));
    played.turn();
    QVERIFY(played.session.canPutBack());
    played.session.next();
    played.turn();
    played.session.next();
    played.turn();
    played.use("MainWindow", "delete");
    played.editor.m_data = str("a map less");
    played.editor.m_hidden.append(row);
    played.editor.report(str("action"), str("delete"));
    played.turn();
    played.session.next();
    QCOMPARE(played.id(), 4);
    QTRY_VERIFY(played.session.canPutBack());
    // Who is lost goes back to where the map was deleted, and not to where a tile was chosen.
    played.editor.m_hidden.clear();
    played.session.putBack();
    QCOMPARE(played.id(), 3);
}

void tst_PutBack::theButtonThatTheStepPointsAtIsNoWrongOne()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "moveUp"));
    played.play({Played::item(1, "MainWindow", "click,")});
    played.editor.m_data = str("a step up");
    Q_EMIT played.editor.used(Played::spot("MainWindow", "moveUp"));
    played.turn();
    QVERIFY(!played.session.canPutBack());
}

void tst_PutBack::pressedMoreOftenThanAskedItIs_data()
{
    QTest::addColumn<bool>("addsUp");
    QTest::addColumn<QByteArray>("hint");
    QTest::addColumn<int>("mostPresses");
    QTest::newRow("a button") << true << QByteArray("Click “Add”") << 1;
    QTest::newRow("a button that is asked for three times")
        << true << QByteArray("Click “Left” three times") << 3;
    QTest::newRow("a field") << false << QByteArray("Click the box") << 9;
}

void tst_PutBack::pressedMoreOftenThanAskedItIs()
{
    QFETCH(bool, addsUp);
    QFETCH(QByteArray, hint);
    QFETCH(int, mostPresses);
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "add"));
    played.editor.m_adding = addsUp ? QStringList{str("add")} : QStringList();
    played.play({Played::item(1, "MainWindow", "click,", "click", hint.constData())});
    const auto press = [&played] {
        played.editor.m_data += str(", one more");
        Q_EMIT played.editor.used(Played::spot("MainWindow", "add"));
        played.turn();
    };
    for (int time = 0; time < mostPresses; ++time) {
        press();
        QVERIFY(!played.session.canPutBack());
    }
    press();
    QCOMPARE(played.session.canPutBack(), addsUp);
    if (addsUp) {
        played.session.putBack();
        QVERIFY(!played.session.canPutBack());
        QCOMPARE(played.editor.m_data, str("as it was"));
        press();
        QVERIFY(!played.session.canPutBack());
    }
}

void tst_PutBack::aTaskThatChangesTheDataIsNothingToPutBack()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "name"));
    played.play({Played::item(1, "MainWindow", "click,", "keyboard")});
    played.use("MainWindow", "name");
    played.editor.m_data = str("a name typed");
    played.editor.report(str("textLength"), str("name"), str("3"));
    played.turn();
    QVERIFY(!played.session.canPutBack());
}

void tst_PutBack::takesTheFilesOfALessonForItsOwn()
{
    Played played;
    played.play({Played::item(1, "MainWindow", "list,1")});
    connect(&played.session, &LessonSession::filesReceived, this,
            [&played] { played.editor.m_data = str("the lesson's files"); });
    played.session.receive(QStringLiteral("feedbackPresetData\u0001{\"data/Actors.json\":\"[]\"}"));
    played.turn();
    played.use("MainWindow", "maps", 5);
    played.editor.report(str("list"), str("5"));
    QVERIFY(!played.session.canPutBack());
    played.editor.m_data = str("and a wrong move");
    QVERIFY(played.session.canPutBack());
    played.session.putBack();
    QCOMPARE(played.editor.m_data, str("the lesson's files"));
}

void tst_PutBack::aRowThatIsAnotherNowIsPutBack()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "commands", 1));
    played.editor.m_meanings.insert(str("commands"), str("row Switch"));
    played.editor.m_chosen = {Played::spot("MainWindow", "commands", 0)};
    played.play({Played::item(1, "MainWindow", "windowState,MapProperties,open", "doubleClick"),
                 QStringLiteral(R"("id":2)")});
    played.turn();
    played.use("MainWindow", "commands", 1);
    played.editor.m_chosen = {Played::spot("MainWindow", "commands", 1)};
    played.editor.report(str("list"), str("1"));
    played.turn();
    QVERIFY(!played.session.isAstray());
    played.use("MainWindow", "commands", 1);
    played.editor.m_meanings.insert(str("commands"), str("row +"));
    played.editor.m_data = str("a command less");
    played.editor.report(str("action"), str("delete"));
    played.turn();
    QVERIFY(played.session.isAstray());
    // To choose the first row again would not bring the second one back.
    QVERIFY(!played.session.wayBack());
    QVERIFY(played.session.canPutBack());
}

void tst_PutBack::whatIsGoneIsPutBack()
{
    const ControlSpot row = Played::spot("MainWindow", "maps", 3);
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), row);
    played.play({Played::item(1, "MainWindow", "list,3"), QStringLiteral(R"("id":2)")});
    played.use("MainWindow", "delete");
    played.editor.m_data = str("a map less");
    played.editor.m_hidden.append(row);
    played.editor.report(str("action"), str("delete"));
    QTRY_VERIFY(played.session.isAstray());
    QVERIFY(!played.session.wayBack());
    QVERIFY(played.lastTold().contains(str("|put it back|")));
    played.editor.m_hidden.clear();
    played.session.putBack();
    QCOMPARE(played.editor.m_data, str("as it was"));
    QVERIFY(!played.session.isAstray());
    QCOMPARE(played.id(), 1);
}

void tst_PutBack::whatWentWrongEarlierIsPutBack()
{
    const ControlSpot row = Played::spot("MainWindow", "maps", 3);
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), row);
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "click,"),
                 Played::item(3, "MainWindow", "click,"), Played::item(4, "MainWindow", "list,3"),
                 QStringLiteral(R"("id":5)")});
    const auto next = [&played] {
        played.session.next();
        played.turn();
    };
    next();
    // Nobody who reads on is kept from it.
    played.use("MainWindow", "delete");
    played.editor.m_data = str("a map less");
    played.editor.m_hidden.append(row);
    played.editor.report(str("action"), str("delete"));
    played.turn();
    QVERIFY(!played.session.isAstray());
    next();
    next();
    QCOMPARE(played.id(), 4);
    QTRY_VERIFY(played.session.isAstray());
    QVERIFY(played.session.canPutBack());
    played.editor.m_hidden.clear();
    played.session.putBack();
    played.turn();
    QCOMPARE(played.id(), 2);
    QCOMPARE(played.editor.m_data, str("as it was"));
    next();
    next();
    QVERIFY(!played.session.isAstray());
}

void tst_PutBack::anEntryThatIsGoneIsPutBack()
{
    const ControlSpot box = Played::spot("MainWindow", "enemy");
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), box);
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "comboBox,enemy,1"),
                 QStringLiteral(R"("id":3)")});
    played.editor.m_entries = 1;
    played.session.next();
    played.turn();
    QCOMPARE(played.id(), 2);
    QTRY_VERIFY(played.session.isAstray());
    QVERIFY(played.session.canPutBack());
    // There was no such entry when the step began, so it is the step before that has to be done again.
    played.session.putBack();
    played.turn();
    QCOMPARE(played.id(), 1);
}

void tst_PutBack::whatIsGoneFromTheStartLeadsNowhere()
{
    const ControlSpot row = Played::spot("MainWindow", "maps", 3);
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), row);
    played.editor.m_hidden.append(row);
    played.play({Played::item(1, "MainWindow", "list,3"), QStringLiteral(R"("id":2)")});
    played.turn();
    played.turn();
    // There is nothing to put back.
    QVERIFY(!played.session.isAstray());
}

void tst_PutBack::anotherProjectCountsWhereTheStepPointsNowhere()
{
    Played played;
    played.play({QStringLiteral(R"("id":1,"x":-9999,"y":-9999,"windowKey":"","condition":"click,")"),
                 QStringLiteral(R"("id":2)")});
    played.editor.m_project = str("/games/other");
    played.use("MainWindow", "open");
    played.editor.report(str("action"), str("fileOpen"));
    played.turn();
    QVERIFY(played.session.isAstray());
    QVERIFY(played.session.canPutBack());
    played.session.putBack();
    QVERIFY(!played.session.isAstray());
}

QTEST_GUILESS_MAIN(tst_PutBack)
#include "tst_PutBack.moc"
