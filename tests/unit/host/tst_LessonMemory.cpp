#include "SessionFixture.h"

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

/// Going back, being shown, and skipping.
class tst_LessonMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goesBackWithTheStateOfThen();
    void goesBackStepByStepAndForthAgain();
    void goesBackInALessonWhoseTextHasChanged();
    void showsAndThenDoes();
    void doesWhatTheIconSays_data();
    void doesWhatTheIconSays();
    void skippingDoesTheStep();
    void whatPointsNowhereIsDoneToo_data();
    void whatPointsNowhereIsDoneToo();
    void skippingGoesOnWhereNothingCanBeDone();
    void skippingAStepThatWaitsForNextPressesNext();
    void skippingClicksNothingThatIsOnlyShown_data();
    void skippingClicksNothingThatIsOnlyShown();
    void nextDoesTheClickThatNobodyHasMade();
    void nextClicksAsOftenAsTheHintSays();
    void nextLeavesWhatWasDone();
    void nextDoesAgainWhatWasPutBack();
    void nextChoosesTheRowAgainThatWasLeft();
    void passesOverStepsThatPassByThemselves();
    void saysWhenAStateIsLost();
    void tellsOfThePressOfAButton();
};

void tst_LessonMemory::goesBackWithTheStateOfThen()
{
    Played played;
    played.play({Played::item(1, "MainWindow", "list,1"), Played::item(2, "MainWindow", "list,2"),
                 Played::item(3, "MainWindow", "list,3")});
    QVERIFY(!played.session.canGoBack());
    played.use("MainWindow", "maps", 1);
    played.editor.m_data = str("after the first");
    played.editor.report(str("list"), str("1"));
    played.turn();
    QCOMPARE(played.id(), 2);
    QVERIFY(played.session.canGoBack());
    played.editor.m_data = str("something else");
    played.editor.open(str("NewProject"));
    played.session.back();
    QCOMPARE(played.id(), 1);
    QCOMPARE(played.editor.m_data, str("as it was"));
    QCOMPARE(played.editor.m_stack, QStringList{str("MainWindow")});
    QVERIFY(!played.session.canGoBack());
    QVERIFY(!played.session.isAstray());
}

void tst_LessonMemory::goesBackStepByStepAndForthAgain()
{
    Played played;
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "click,"),
                 Played::item(3, "MainWindow", "click,")});
    const auto next = [&played] {
        played.session.receive(str("next"));
        played.turn();
    };
    next();
    next();
    QCOMPARE(played.id(), 3);
    played.session.back();
    QCOMPARE(played.id(), 2);
    next();
    QCOMPARE(played.id(), 3);
    played.session.back();
    played.session.back();
    QCOMPARE(played.id(), 1);
    QVERIFY(!played.session.canGoBack());
    played.session.back();
    QCOMPARE(played.id(), 1);
}

void tst_LessonMemory::passesOverStepsThatPassByThemselves()
{
    Played played;
    played.play({Played::item(1, "MainWindow", "list,1"), Played::item(2, "MainWindow", "list,2", "wait"),
                 Played::item(3, "MainWindow", "wait,20", "eye"), Played::item(4, "MainWindow", "click,")});
    played.editor.report(str("list"), str("1"));
    played.editor.report(str("list"), str("2"));
    QTRY_COMPARE(played.id(), 4);
    played.session.back();
    QCOMPARE(played.id(), 1);
}

void tst_LessonMemory::saysWhenAStateIsLost()
{
    Played played;
    QSignalSpy lost(&played.session, &LessonSession::stateLost);
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "list,1"),
                 Played::item(3, "MainWindow", "click,")});
    played.session.receive(str("next"));
    played.turn();
    played.editor.m_project = str("/games/other");
    played.editor.report(str("list"), str("7"));
    played.turn();
    QVERIFY(played.session.canPutBack());
    played.editor.m_canRestore = false;
    played.session.putBack();
    QCOMPARE(lost.size(), 1);
    played.session.back();
    QCOMPARE(lost.size(), 2);
    QCOMPARE(played.id(), 1);
}

void tst_LessonMemory::goesBackInALessonWhoseTextHasChanged()
{
    const auto text = [](const char *hint) {
        return QStringLiteral("var scenario = [{%1},{%2}];")
            .arg(Played::item(1, "MainWindow", "list,1"),
                 Played::item(2, "MainWindow", "click,", "click", hint));
    };
    Played played;
    played.session.play(str("Own"), text("Click it"), 1);
    played.turn();
    played.use("MainWindow", "maps", 1);
    played.editor.m_data = str("after the first");
    played.editor.report(str("list"), str("1"));
    played.turn();
    QCOMPARE(played.id(), 2);
    played.session.play(str("Own"), text("Click it now"), 2);
    played.turn();
    QCOMPARE(played.id(), 2);
    QVERIFY(played.session.canGoBack());
    played.session.back();
    QCOMPARE(played.id(), 1);
    QCOMPARE(played.editor.m_data, str("as it was"));
    QVERIFY(!played.session.canGoBack());
    // Another lesson, or another step of it, begins.
    played.session.play(str("Own"), text("Click it"), 2);
    played.turn();
    QVERIFY(!played.session.canGoBack());
}

void tst_LessonMemory::showsAndThenDoes()
{
    Played played;
    ControlSpot shown;
    connect(&played.session, &LessonSession::showRequested, this,
            [&shown](const ControlSpot &spot) { shown = spot; });
    const ControlSpot row = Played::spot("MainWindow", "maps", 1);
    played.editor.m_controls.insert(str("MainWindow"), row);
    played.play({Played::item(1, "MainWindow", "list,1"), QStringLiteral(R"("id":2)")});
    played.told.clear();
    played.session.showMe();
    QCOMPARE(shown, row);
    QVERIFY(played.editor.m_performed.isEmpty());
    QTRY_VERIFY(!played.lastTold().isEmpty());
    // Away, and back from there.
    QCOMPARE(played.told, (QStringList{str("indicator|updateXy|601|%1").arg(549 - LessonWords::kTip.y()),
                                       str("indicator|update|95|196|MainWindow|Hint|4|0")}));
    played.editor.m_onPerform = [&played] {
        played.editor.report(str("list"), str("1"));
    };
    played.session.showMe();
    QCOMPARE(played.editor.m_performed.size(), 1);
    QCOMPARE(played.editor.m_performed.constFirst().spot, row);
    QCOMPARE(played.id(), 2);
}

void tst_LessonMemory::doesWhatTheIconSays_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("hint");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("enter");
    using Kind = ControlUse::Kind;
    const auto row = [](const char *name, const char *condition, const char *icon, const char *hint,
                        Kind kind, const char *text = "", bool enter = false) {
        QTest::newRow(name) << str(condition) << str(icon) << str(hint) << static_cast<int>(kind) << str(text)
                            << enter;
    };
    row("click", "list,1", "click", "", Kind::kClick);
    row("double click", "windowState,MapProperties,open", "doubleClick", "", Kind::kDoubleClick);
    row("right click", "popup,MapPopup", "rightClick", "", Kind::kRightClick);
    row("drag", "mouseEvent,Map,click", "click", "Press here and drag.", Kind::kDrag);
    row("Enter", "windowState,MapProperties,close", "keyboard", "", Kind::kType, "", true);
    row("a number", "spinBox,=,35 %", "keyboard", "", Kind::kType, "35");
    row("a text", "textLength,name,4", "keyboard", "", Kind::kType, "aaaa");
    row("a choice", "comboBox,moveType,2", "click", "", Kind::kChoose, "2");
}

void tst_LessonMemory::doesWhatTheIconSays()
{
    QFETCH(QString, condition);
    QFETCH(QString, icon);
    QFETCH(QString, hint);
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "control"));
    if (condition.endsWith(str("close"))) {
        played.editor.open(str("MapProperties"));
        played.editor.m_controls.insert(str("MapProperties"), Played::spot("MapProperties", "control"));
    }
    const QString key = played.editor.m_stack.constLast();
    played.play({Played::item(1, key.toLatin1().constData(), condition.toLatin1().constData(),
                              icon.toLatin1().constData(), hint.toLatin1().constData()),
                 QStringLiteral(R"("id":2)")});
    QCOMPARE(played.id(), 1);
    played.session.skipStep();
    QCOMPARE(played.editor.m_performed.size(), 1);
    const ControlUse use = played.editor.m_performed.constFirst();
    QTEST(static_cast<int>(use.kind), "kind");
    QTEST(use.text, "text");
    QTEST(use.pressesEnter, "enter");
}

void tst_LessonMemory::skippingDoesTheStep()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 1));
    played.editor.m_onPerform = [&played] {
        played.editor.report(str("list"), str("1"));
    };
    played.play(
        {Played::item(1, "MainWindow", "list,1"), QStringLiteral(R"("id":2)"), QStringLiteral(R"("id":3)")});
    played.session.skipStep();
    QCOMPARE(played.id(), 2);
}

void tst_LessonMemory::whatPointsNowhereIsDoneToo_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("hint");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
    QTest::newRow("the game is over") << str("action,play,close") << str("Press the Esc key.")
                                      << static_cast<int>(ControlUse::Kind::kEnd) << str("play");
    QTest::newRow("a number") << str("list,1") << str("Type 6 and press Enter.")
                              << static_cast<int>(ControlUse::Kind::kType) << str("6");
}

void tst_LessonMemory::whatPointsNowhereIsDoneToo()
{
    QFETCH(QString, condition);
    QFETCH(QString, hint);
    Played played;
    played.editor.m_onPerform = [&played, &condition] {
        const QStringList words = condition.split(QLatin1Char(','));
        played.editor.report(words.at(0), words.at(1), words.value(2));
    };
    QString item = Played::item(1, "MainWindow", condition.toLatin1().constData(), "keyboard",
                                hint.toLatin1().constData());
    item.replace(str(R"("x":5,"y":6)"), str(R"("x":-9999,"y":-9999)"));
    played.play({item, QStringLiteral(R"("id":2)"), QStringLiteral(R"("id":3)")});
    played.session.showMe();
    QVERIFY(played.editor.m_performed.isEmpty());
    played.session.showMe();
    QCOMPARE(played.editor.m_performed.size(), 1);
    const ControlUse use = played.editor.m_performed.constFirst();
    QVERIFY(use.spot.control.isEmpty());
    QTEST(static_cast<int>(use.kind), "kind");
    QTEST(use.text, "text");
    QCOMPARE(played.id(), 2);
}

void tst_LessonMemory::skippingGoesOnWhereNothingCanBeDone()
{
    Played played;
    played.play(
        {Played::item(1, "MainWindow", "list,1"), QStringLiteral(R"("id":2)"), QStringLiteral(R"("id":3)")});
    played.session.skipStep();
    QCOMPARE(played.id(), 2);
    QCOMPARE(played.editor.m_data, str("as it was"));
}

void tst_LessonMemory::skippingAStepThatWaitsForNextPressesNext()
{
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "maps", 1));
    played.play({Played::item(1, "MainWindow", "click,", "eye"), QStringLiteral(R"("id":2)"),
                 QStringLiteral(R"("id":3)")});
    played.session.skipStep();
    QCOMPARE(played.id(), 2);
    QVERIFY(played.editor.m_performed.isEmpty());
}

void tst_LessonMemory::skippingClicksNothingThatIsOnlyShown_data()
{
    QTest::addColumn<QByteArray>("condition");
    QTest::newRow("a question") << QByteArray("yesNo");
    QTest::newRow("a wait") << QByteArray("wait,60000");
}

void tst_LessonMemory::skippingClicksNothingThatIsOnlyShown()
{
    QFETCH(const QByteArray, condition);
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), Played::spot("MainWindow", "delete"));
    played.editor.m_chosen = {Played::spot("MainWindow", "tiles", 0)};
    played.play({Played::item(1, "MainWindow", condition.constData(), "eye"), QStringLiteral(R"("id":2)")});
    // Who has looked at something else has it as before again.
    played.use("MainWindow", "tiles", 3);
    played.editor.m_chosen = {Played::spot("MainWindow", "tiles", 3)};
    played.editor.report(str("list"), str("3"));
    played.turn();
    played.session.skipStep();
    QCOMPARE(played.id(), 2);
    QCOMPARE(played.editor.m_performed.size(), 1);
    QCOMPARE(played.editor.m_performed.constFirst().spot, Played::spot("MainWindow", "tiles", 0));
}

void tst_LessonMemory::nextDoesTheClickThatNobodyHasMade()
{
    const ControlSpot button = Played::spot("MainWindow", "add");
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), button);
    played.play({Played::item(1, "MainWindow", "click,", "click", "Click “Add”."),
                 Played::item(2, "MainWindow", "click,", "rightClick"),
                 Played::item(3, "MainWindow", "click,", "keyboard"), QStringLiteral(R"("id":4)")});
    played.session.next();
    QCOMPARE(played.id(), 2);
    QCOMPARE(played.editor.m_performed.size(), 1);
    QCOMPARE(played.editor.m_performed.constFirst().spot, button);
    QCOMPARE(played.editor.m_performed.constFirst().kind, ControlUse::Kind::kClickQuoted);
    QCOMPARE(played.editor.m_performed.constFirst().text, QString::fromUtf8("Click “Add”."));
    // A menu that came up has gone when a person gets to Next.
    played.session.next();
    QCOMPARE(played.id(), 3);
    QCOMPARE(played.editor.m_performed.size(), 3);
    QCOMPARE(played.editor.m_performed.at(1).kind, ControlUse::Kind::kRightClick);
    QCOMPARE(played.editor.m_performed.at(2).spot, Played::spot("Menu", "@dismiss"));
    // What to type is the person's own.
    played.session.next();
    QCOMPARE(played.id(), 4);
    QCOMPARE(played.editor.m_performed.size(), 3);
}

void tst_LessonMemory::nextClicksAsOftenAsTheHintSays()
{
    Played played;
    played.editor.m_controls.insert(QStringLiteral("MainWindow"), Played::spot("MainWindow", "up"));
    played.play({Played::item(1, "MainWindow", "click,", "click", "Click “Up” three times."),
                 Played::item(2, "MainWindow", "click,", "click", "Click “Up” twice."),
                 Played::item(3, "MainWindow", "click,", "keyboard"), QStringLiteral(R"("id":4)")});
    played.session.next();
    QCOMPARE(played.id(), 2);
    QCOMPARE(played.editor.m_performed.size(), 3);
    // Who has clicked there knows how often.
    Q_EMIT played.editor.used(Played::spot("MainWindow", "up"));
    played.turn();
    played.session.next();
    QCOMPARE(played.id(), 3);
    QCOMPARE(played.editor.m_performed.size(), 3);
}

void tst_LessonMemory::nextLeavesWhatWasDone()
{
    const ControlSpot button = Played::spot("MainWindow", "add");
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), button);
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "click,"),
                 QStringLiteral(R"("id":3)")});
    Q_EMIT played.editor.used(button);
    played.session.next();
    QCOMPARE(played.id(), 2);
    QVERIFY(played.editor.m_performed.isEmpty());
    // Another control is none of it.
    Q_EMIT played.editor.used(Played::spot("MainWindow", "delete"));
    played.session.next();
    QCOMPARE(played.id(), 3);
    QCOMPARE(played.editor.m_performed.size(), 1);
}

void tst_LessonMemory::nextDoesAgainWhatWasPutBack()
{
    const ControlSpot button = Played::spot("MainWindow", "add");
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), button);
    played.play({Played::item(1, "MainWindow", "click,"), QStringLiteral(R"("id":2)")});
    Q_EMIT played.editor.used(button);
    played.editor.m_data = str("one more");
    played.turn();
    played.use("MainWindow", "delete");
    played.editor.m_data = str("and one less");
    Q_EMIT played.editor.used(Played::spot("MainWindow", "delete"));
    played.turn();
    QVERIFY(played.session.canPutBack());
    played.session.putBack();
    played.turn();
    QVERIFY(played.editor.m_performed.isEmpty());
    played.session.next();
    QCOMPARE(played.id(), 2);
    QCOMPARE(played.editor.m_performed.size(), 1);
    QCOMPARE(played.editor.m_performed.constFirst().spot, button);
}

void tst_LessonMemory::nextChoosesTheRowAgainThatWasLeft()
{
    const ControlSpot tab = Played::spot("MainWindow", "tabs", 1);
    Played played;
    played.editor.m_controls.insert(str("MainWindow"), tab);
    played.play({Played::item(1, "MainWindow", "click,"), QStringLiteral(R"("id":2)")});
    Q_EMIT played.editor.used(tab);
    Q_EMIT played.editor.used(Played::spot("MainWindow", "tabs", 2));
    played.session.next();
    QCOMPARE(played.editor.m_performed.size(), 1);
    QCOMPARE(played.editor.m_performed.constFirst().spot, tab);
}

void tst_LessonMemory::tellsOfThePressOfAButton()
{
    Played played;
    QSignalSpy pressed(&played.session, &LessonSession::nextArrived);
    played.play({Played::item(1, "MainWindow", "click,"), Played::item(2, "MainWindow", "yesNo")});
    played.session.receive(str("next"));
    played.session.receive(str("yes"));
    QCOMPARE(pressed.size(), 2);
}

QTEST_GUILESS_MAIN(tst_LessonMemory)
#include "tst_LessonMemory.moc"
