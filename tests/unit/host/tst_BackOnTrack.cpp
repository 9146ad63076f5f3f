#include "SomeWays.h"

using namespace SomeWays;

/// A learner who strays, and what leads back.
class tst_BackOnTrack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leadsBackIntoAWindowThatWasClosed();
    void leadsOutOfADialogThatIsInTheWay();
    void aGreyControlIsNoWay();
    void whatWasLeftInAStepThatPointsNowhereIsOpenedAsBefore();
    void opensTheWindowAgainForTheSameRow();
    void aWindowThatCameUpInAnotherWayIsLeft();
    void opensAMenuAgainAtTheSameRow();
    void namesTheRowOfTheLessonWhereNothingWasOpened();
    void aMenuAboveTheControlHasToGo();
    void aMenuThatTheStepAsksForMayStay();
    void bringsTheTabBackThatTheStepIsAbout();
    void doesNotMindWhatTheStepIsNotAbout();
    void aRowThatIsGoneLeadsNowhere();
    void bringsBackTheToolThatOpensTheWindow();
    void isNotAstrayWhereTheStepPointsNowhere();
    void saysNothingOfWhatHappensWithinOneTurn();
    void theStepIsToldAnewInPlaceOfNext();
    void followsARowThatWasScrolled();
};

void tst_BackOnTrack::leadsBackIntoAWindowThatWasClosed()
{
    Played played;
    played.editor.m_ways = someWays();
    played.editor.m_controls.insert(str(kProperties), Played::spot(kProperties, "picture"));
    played.editor.open(str(kProperties));
    QSignalSpy changed(&played.session, &LessonSession::astrayChanged);
    played.play({Played::item(1, kProperties, "action,picture,")});
    QVERIFY(!played.session.isAstray());
    played.use(kProperties, "cancel");
    played.editor.close(str(kProperties));
    played.turn();
    QVERIFY(played.session.isAstray());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(played.session.wayBack()->by, Played::spot("MainWindow", "maps"));
    QCOMPARE(played.session.wayBack()->icon, str("doubleClick"));
    // The middle of the list, less the way from the bubble to the arrow's tip; a double click, and no button.
    const QPoint spot = QPoint(90, 190) + QPoint(999, 999) - LessonWords::kTip;
    QCOMPARE(
        played.lastTold(),
        QStringLiteral("indicator|update|%1|%2|MapProperties|use maps -1|4|1").arg(spot.x()).arg(spot.y()));
    played.use("MainWindow", "maps", 2);
    played.editor.open(str(kProperties));
    played.turn();
    QVERIFY(!played.session.isAstray());
    QCOMPARE(played.lastTold(), str("indicator|update|305|406|MapProperties|Hint|4|0"));
}

void tst_BackOnTrack::leadsOutOfADialogThatIsInTheWay()
{
    Played played;
    played.editor.m_ways = someWays();
    played.play({Played::item(1, "MainWindow", "list,1")});
    played.use("MainWindow", "maps", 0);
    played.editor.open(str(kProperties));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, Played::spot(kProperties, "cancel"));
    // Whatever happens in there is not what the step asks for.
    played.use(kProperties, "images", 1);
    played.editor.report(str("list"), str("1"));
    QCOMPARE(played.id(), 1);
    played.use(kProperties, "cancel");
    played.editor.close(str(kProperties));
    played.turn();
    QVERIFY(!played.session.isAstray());
}

void tst_BackOnTrack::aGreyControlIsNoWay()
{
    Played played;
    played.editor.m_ways =
        someWays() + Ways{way("Other", "commands", "doubleClick", "Other", Does::kOpens, kProperties),
                          way("MainWindow", "tool", "click", "MainWindow", Does::kOpens, "Other"),
                          way("Other", "close", "click", "Other", Does::kCloses, "Other")};
    const ControlSpot commands = Played::spot("Other", "commands");
    played.editor.m_controls.insert(str(kProperties), Played::spot(kProperties, "picture"));
    played.editor.open(str("Other"));
    played.play({Played::item(1, kProperties, "action,picture,")});
    played.turn();
    QCOMPARE(played.session.wayBack()->by, commands);
    played.editor.m_hidden = {commands};
    played.editor.report(str("action"), str("remove"));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, Played::spot("Other", "close"));
    // With nothing else to use it is what to wait for.
    played.editor.m_ways = {way("Other", "commands", "doubleClick", "Other", Does::kOpens, kProperties)};
    played.editor.report(str("action"), str("remove"));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, commands);
}

void tst_BackOnTrack::whatWasLeftInAStepThatPointsNowhereIsOpenedAsBefore()
{
    Played played;
    // What opens the window sooner opens it for something else.
    played.editor.m_ways =
        someWays() + Ways{way("Other", "commands", "doubleClick", "Other", Does::kOpens, kProperties),
                          way("Other", "close", "click", "Other", Does::kCloses, "Other")};
    played.editor.m_controls.insert(str(kProperties), Played::spot(kProperties, "picture"));
    played.play({Played::item(1, "MainWindow", "windowState,MapProperties,open", "doubleClick"),
                 QStringLiteral(R"("id":2)"), Played::item(3, kProperties, "action,picture,")});
    played.use("MainWindow", "maps", 2);
    played.editor.open(str(kProperties));
    played.turn();
    QCOMPARE(played.id(), 2);
    played.editor.close(str(kProperties));
    played.editor.open(str("Other"));
    played.turn();
    QVERIFY(!played.session.isAstray());
    played.session.next();
    played.turn();
    QCOMPARE(played.id(), 3);
    QCOMPARE(played.session.wayBack()->by, Played::spot("Other", "close"));
    played.editor.close(str("Other"));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, Played::spot("MainWindow", "maps", 2));
}

void tst_BackOnTrack::opensTheWindowAgainForTheSameRow()
{
    Played played;
    played.editor.m_ways = someWays();
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 4));
    played.play({Played::item(1, "MainWindow", "windowState,MapProperties,open", "doubleClick"),
                 Played::item(2, kProperties, "action,picture,")});
    played.use("MainWindow", "maps", 4);
    played.editor.open(str(kProperties));
    QCOMPARE(played.id(), 2);
    played.use(kProperties, "cancel");
    played.editor.close(str(kProperties));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, Played::spot("MainWindow", "maps", 4));
}

void tst_BackOnTrack::aWindowThatCameUpInAnotherWayIsLeft()
{
    Played played;
    played.editor.m_ways = someWays();
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 4));
    played.play({Played::item(1, "MainWindow", "windowState,MapProperties,open", "doubleClick"),
                 Played::item(2, kProperties, "action,picture,")});
    played.use("MainWindow", "maps", 4);
    played.editor.open(str(kProperties));
    QCOMPARE(played.id(), 2);
    played.turn();
    QVERIFY(!played.session.isAstray());
    played.use(kProperties, "cancel");
    played.editor.close(str(kProperties));
    QCOMPARE(played.id(), 2);
    played.use("MainWindow", "maps", 0);
    played.editor.open(str(kProperties));
    played.turn();
    QVERIFY(played.session.isAstray());
    QCOMPARE(played.session.wayBack()->by, Played::spot(kProperties, "cancel"));
}

void tst_BackOnTrack::opensAMenuAgainAtTheSameRow()
{
    Played played;
    played.editor.m_ways = someWays();
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 3));
    played.editor.m_controls.insert(str("Menu"), Played::spot("Menu", "MapPopup/newMap"));
    played.play({Played::item(1, "MainWindow", "popup,MapPopup", "rightClick"),
                 Played::item(2, "Menu", "windowState,MapProperties,open"),
                 Played::item(3, kProperties, "list,1")});
    played.use("MainWindow", "maps", 3);
    played.editor.popUp(str("MapPopup"));
    QCOMPARE(played.id(), 2);
    played.turn();
    QVERIFY(!played.session.isAstray());
    played.editor.closeMenu();
    played.turn();
    QCOMPARE(played.session.wayBack()->by, Played::spot("MainWindow", "maps", 3));
    QCOMPARE(played.session.wayBack()->icon, str("rightClick"));
    // At another row it is another menu.
    played.use("MainWindow", "maps", 1);
    played.editor.popUp(str("MapPopup"));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, Played::spot("MainWindow", "maps", 3));
    played.editor.closeMenu();
    played.use("MainWindow", "maps", 3);
    played.editor.popUp(str("MapPopup"));
    played.turn();
    QVERIFY(!played.session.isAstray());
    played.use("Menu", "MapPopup/newMap");
    played.editor.closeMenu();
    played.editor.open(str(kProperties));
    QCOMPARE(played.id(), 3);
    played.turn();
    // The dialog belongs to the row whose menu opened it.
    played.use(kProperties, "cancel");
    played.editor.close(str(kProperties));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, Played::spot("MainWindow", "maps", 3));
    QCOMPARE(played.session.wayBack()->icon, str("rightClick"));
}

void tst_BackOnTrack::namesTheRowOfTheLessonWhereNothingWasOpened()
{
    Played played;
    played.editor.m_ways = someWays();
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 3));
    // The person had a menu open before, of another row.
    played.use("MainWindow", "maps", 0);
    played.play({Played::item(1, "MainWindow", "popup,MapPopup", "rightClick"),
                 Played::item(2, "Menu", "windowState,MapProperties,open")});
    played.editor.popUp(str("MapPopup"));
    played.editor.closeMenu();
    played.turn();
    QCOMPARE(played.id(), 1);
    played.session.skipStep();
    played.turn();
    QCOMPARE(played.id(), 2);
    QCOMPARE(played.session.wayBack()->by, Played::spot("MainWindow", "maps", 3));
}

void tst_BackOnTrack::aMenuAboveTheControlHasToGo()
{
    const ControlSpot tiles = Played::spot("MainWindow", "tiles", 1);
    Played played;
    played.editor.m_ways = someWays();
    played.editor.m_controls.insert(str("MainWindow"), tiles);
    played.play({Played::item(1, "MainWindow", "list,1"), QStringLiteral(R"("id":2)")});
    played.use("MainWindow", "maps", 1);
    played.editor.popUp(str("MapPopup"));
    played.turn();
    QVERIFY(!played.session.isAstray());
    played.editor.closeMenu();
    played.editor.m_hidden.append(tiles);
    played.editor.popUp(str("MapPopup"));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, Played::spot("Menu", "@dismiss"));
    // A press beside it closes it and does what the step asks for: that counts.
    played.editor.m_cause = tiles;
    played.editor.closeMenu();
    played.editor.report(str("list"), str("1"));
    QCOMPARE(played.id(), 2);
}

void tst_BackOnTrack::aMenuThatTheStepAsksForMayStay()
{
    const ControlSpot row = Played::spot("MainWindow", "maps", 3);
    Played played;
    played.editor.m_ways = someWays();
    played.editor.m_controls.insert(str("MainWindow"), row);
    played.play(
        {Played::item(1, "MainWindow", "click,", "rightClick"), Played::item(2, "MainWindow", "list,3")});
    played.turn();
    played.use("MainWindow", "maps", 3);
    played.editor.popUp(str("MapPopup"));
    played.editor.m_hidden = {row};
    played.turn();
    played.turn();
    QVERIFY(!played.session.isAstray());
    // The step behind it asks for the row itself.
    played.session.next();
    played.turn();
    played.turn();
    QCOMPARE(played.id(), 2);
    QCOMPARE(played.session.wayBack()->by, Played::spot("Menu", "@dismiss"));
}

void tst_BackOnTrack::bringsTheTabBackThatTheStepIsAbout()
{
    const ControlSpot ground = Played::spot("MainWindow", "palette", 0);
    const ControlSpot nature = Played::spot("MainWindow", "palette", 1);
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "tiles", 4));
    played.editor.m_meanings.insert(str("tiles"), str("Water"));
    played.editor.m_chosen = {ground};
    played.play({Played::item(1, "MainWindow", "list,4"), QStringLiteral(R"("id":2)")});
    played.editor.m_meanings.insert(str("tiles"), str("Rock"));
    played.editor.m_chosen = {nature};
    played.use("MainWindow", "palette", 1);
    played.editor.report(str("tabView"), str("tabview"), str("1"));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, ground);
    QCOMPARE(played.session.wayBack()->does, Does::kShows);
    played.use("MainWindow", "tiles", 4);
    played.editor.report(str("list"), str("4"));
    QCOMPARE(played.id(), 1);
    played.editor.m_meanings.insert(str("tiles"), str("Water"));
    played.editor.m_chosen = {ground};
    played.use("MainWindow", "palette", 0);
    played.editor.report(str("tabView"), str("tabview"), str("0"));
    played.turn();
    QVERIFY(!played.session.isAstray());
    played.use("MainWindow", "tiles", 4);
    played.editor.report(str("list"), str("4"));
    QCOMPARE(played.id(), 2);
}

void tst_BackOnTrack::doesNotMindWhatTheStepIsNotAbout()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "fill"));
    played.editor.m_chosen = {Played::spot("MainWindow", "pencil")};
    played.play({Played::item(1, "MainWindow", "action,fill,")});
    played.editor.m_chosen = {Played::spot("MainWindow", "ellipse")};
    played.use("MainWindow", "ellipse");
    played.editor.report(str("action"), str("ellipse"));
    played.turn();
    QVERIFY(!played.session.isAstray());
}

void tst_BackOnTrack::aRowThatIsGoneLeadsNowhere()
{
    const ControlSpot row = Played::spot("MainWindow", "maps", 4);
    Played played;
    played.editor.m_ways = someWays();
    played.editor.m_controls.insert(str("MainWindow"), row);
    played.play({Played::item(1, "MainWindow", "windowState,MapProperties,open", "doubleClick"),
                 Played::item(2, kProperties, "action,picture,")});
    played.use("MainWindow", "maps", 4);
    played.editor.open(str(kProperties));
    played.turn();
    QCOMPARE(played.id(), 2);
    played.use(kProperties, "cancel");
    played.editor.close(str(kProperties));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, row);
    played.editor.m_hidden.append(row);
    played.editor.m_data = str("a map less");
    played.editor.report(str("action"), str("delete"));
    played.turn();
    QVERIFY(!played.session.wayBack());
    QVERIFY(played.session.canPutBack());
    QVERIFY(played.lastTold().contains(str("|put it back|")));
}

void tst_BackOnTrack::bringsBackTheToolThatOpensTheWindow()
{
    const ControlSpot row = Played::spot("MainWindow", "maps", 4);
    const ControlSpot tool = Played::spot("MainWindow", "modeEvent");
    Played played;
    played.editor.m_ways = someWays();
    played.editor.m_controls.insert(str("MainWindow"), row);
    played.editor.m_meanings.insert(str("maps"), str("in event mode"));
    played.editor.m_chosen = {tool};
    played.play({Played::item(1, "MainWindow", "windowState,MapProperties,open", "doubleClick"),
                 Played::item(2, kProperties, "action,picture,")});
    played.use("MainWindow", "maps", 4);
    played.editor.open(str(kProperties));
    played.turn();
    played.use(kProperties, "cancel");
    played.editor.close(str(kProperties));
    played.editor.m_meanings.insert(str("maps"), str("in map mode"));
    played.editor.m_chosen = {Played::spot("MainWindow", "modeMap")};
    played.turn();
    QCOMPARE(played.session.wayBack()->by, tool);
    played.editor.m_meanings.insert(str("maps"), str("in event mode"));
    played.editor.m_chosen = {tool};
    played.use("MainWindow", "modeEvent");
    played.editor.report(str("action"), str("modeEvent"));
    played.turn();
    QCOMPARE(played.session.wayBack()->by, row);
}

void tst_BackOnTrack::isNotAstrayWhereTheStepPointsNowhere()
{
    Played played;
    played.editor.m_ways = someWays();
    played.play(
        {QStringLiteral(R"("id":1,"x":-9999,"y":-9999,"windowKey":"MainWindow","condition":"click,")")});
    played.use("MainWindow", "maps", 0);
    played.editor.open(str(kProperties));
    played.turn();
    QVERIFY(!played.session.isAstray());
}

void tst_BackOnTrack::saysNothingOfWhatHappensWithinOneTurn()
{
    Played played;
    played.editor.m_ways = someWays();
    QSignalSpy changed(&played.session, &LessonSession::astrayChanged);
    played.editor.open(str(kProperties));
    played.play({Played::item(1, kProperties, "windowState,MapProperties,close"),
                 Played::item(2, "Second", "list,1")});
    played.use(kProperties, "ok");
    played.editor.close(str(kProperties));
    QCOMPARE(played.id(), 2);
    played.editor.open(str("Second"));
    played.turn();
    QVERIFY(!played.session.isAstray());
    QCOMPARE(changed.size(), 0);
}

void tst_BackOnTrack::theStepIsToldAnewInPlaceOfNext()
{
    Played played;
    played.editor.m_ways = someWays();
    played.play({Played::item(1, "MainWindow", "click,", "eye"), QStringLiteral(R"("id":2)")});
    QVERIFY(played.lastTold().endsWith(str("|Hint|5|3")));
    played.use("MainWindow", "maps", 0);
    played.editor.open(str(kProperties));
    played.turn();
    QVERIFY2(played.lastTold().endsWith(str("|use cancel -1|4|0")), qPrintable(played.lastTold()));
    // One that was on its way.
    played.session.receive(str("next"));
    QCOMPARE(played.id(), 1);
    played.use(kProperties, "cancel");
    played.editor.close(str(kProperties));
    played.turn();
    QVERIFY(played.lastTold().endsWith(str("|Hint|5|3")));
    played.session.receive(str("next"));
    QCOMPARE(played.id(), 2);
}

void tst_BackOnTrack::followsARowThatWasScrolled()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 2));
    played.play({Played::item(1, "MainWindow", "list,2")});
    QCOMPARE(played.session.bubbleTarget(), QPoint(95, 196));
    // The fake editor's controls are where their windows begin.
    played.editor.m_origins.insert(str("MainWindow"), QPoint(400, 500));
    Q_EMIT played.editor.viewChanged();
    played.turn();
    QCOMPARE(played.session.bubblePlace(), QPoint(405, 506));
}

QTEST_GUILESS_MAIN(tst_BackOnTrack)
#include "tst_BackOnTrack.moc"
