#include "SessionFixture.h"

Q_DECLARE_METATYPE(ControlSpot)

/// What ends a step, and what is a wrong move. The editor of the tests has one control a window.
class tst_WhatCounts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyWhatCameFromTheControlPointedAt_data();
    void onlyWhatCameFromTheControlPointedAt();
    void anythingCountsWhereThePositionNamesNoControl();
    void anythingCountsFromAnEditorThatDoesNotTell();
    void aFieldToTypeIntoIsClosedByAnythingButADismissal_data();
    void aFieldToTypeIntoIsClosedByAnythingButADismissal();
    void escStandsForTheButtonThatDropsToo();
    void aDoubleClickOnARowStandsForTheButtonThatKeepsToo_data();
    void aDoubleClickOnARowStandsForTheButtonThatKeepsToo();
    void aDragIsWhatTheHintAsksFor_data();
    void aDragIsWhatTheHintAsksFor();
    void theEndOfAPressBelongsToItsStep();
    void theEntryOfAnotherMenuDoesNotCount();
    void offersHelpAfterThreeWrongClicks();
    void oneClickIsOneWrongMove();
    void typingIsNoWrongClick();
    void offersHelpAfterAWhile_data();
    void offersHelpAfterAWhile();
    void offersHelpWithAClickBeforeNext();
    void offersNoHelpWhereNothingIsToBeDone();
};

void tst_WhatCounts::onlyWhatCameFromTheControlPointedAt_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<ControlSpot>("pointed");
    QTest::addColumn<ControlSpot>("used");
    QTest::addColumn<bool>("counts");
    const auto row = [](const char *name, const char *condition, const ControlSpot &pointed,
                        const ControlSpot &used, bool counts) {
        QTest::newRow(name) << QString::fromLatin1(condition) << pointed << used << counts;
    };
    const ControlSpot newMap = Played::spot("Menu", "MapPopup/newMap");
    const ControlSpot properties = Played::spot("Menu", "MapPopup/mapProperties");
    row("the entry", "windowState,MapProperties,open", newMap, newMap, true);
    row("another entry that opens the same window", "windowState,MapProperties,open", newMap, properties,
        false);
    row("the row", "popup,MapPopup", Played::spot("MainWindow", "maps", 3),
        Played::spot("MainWindow", "maps", 3), true);
    row("another row", "popup,MapPopup", Played::spot("MainWindow", "maps", 3),
        Played::spot("MainWindow", "maps", 1), false);
    row("the cell", "pressed,0,0", Played::spot("MainWindow", "map", ControlSpot::cell(4, 2)),
        Played::spot("MainWindow", "map", ControlSpot::cell(4, 2)), true);
    row("another cell", "pressed,0,0", Played::spot("MainWindow", "map", ControlSpot::cell(4, 2)),
        Played::spot("MainWindow", "map", ControlSpot::cell(4, 3)), false);
    row("the map, wherever", "menuEvent,Map,click",
        Played::spot("MainWindow", "map", ControlSpot::cell(4, 2)), Played::spot("MainWindow", "map"), true);
    row("a list of the same words", "list,1", Played::spot("MainWindow", "tiles", 1),
        Played::spot("MainWindow", "maps", 1), false);
}

void tst_WhatCounts::onlyWhatCameFromTheControlPointedAt()
{
    QFETCH(QString, condition);
    QFETCH(ControlSpot, pointed);
    QFETCH(ControlSpot, used);
    Played played;
    played.editor.m_controls.insert(QStringLiteral("MainWindow"), pointed);
    played.play(
        {Played::item(1, "MainWindow", condition.toLatin1().constData()), QStringLiteral(R"("id":2)")});
    played.editor.m_cause = used;
    const QStringList words = condition.split(QLatin1Char(','));
    if (words.constFirst() == QLatin1String("windowState")) {
        played.editor.open(words.at(1));
    } else if (words.constFirst() == QLatin1String("popup")) {
        played.editor.popUp(words.at(1));
    } else {
        played.editor.report(words.at(0), words.at(1), words.value(2));
    }
    QFETCH(bool, counts);
    QCOMPARE(played.id(), counts ? 2 : 1);
}

void tst_WhatCounts::anythingCountsWhereThePositionNamesNoControl()
{
    Played played;
    played.play({Played::item(1, "MainWindow", "list,1"), QStringLiteral(R"("id":2)")});
    played.use("MainWindow", "maps", 1);
    played.editor.report(QStringLiteral("list"), QStringLiteral("1"));
    QCOMPARE(played.id(), 2);
}

void tst_WhatCounts::anythingCountsFromAnEditorThatDoesNotTell()
{
    Played played;
    played.editor.m_controls.insert(QStringLiteral("MainWindow"), Played::spot("MainWindow", "tiles", 1));
    played.play({Played::item(1, "MainWindow", "list,1"), QStringLiteral(R"("id":2)")});
    played.editor.report(QStringLiteral("list"), QStringLiteral("1"));
    QCOMPARE(played.id(), 2);
}

void tst_WhatCounts::aFieldToTypeIntoIsClosedByAnythingButADismissal_data()
{
    QTest::addColumn<QString>("used");
    QTest::addColumn<bool>("counts");
    QTest::newRow("Enter, for the default button") << QStringLiteral("ok") << true;
    QTest::newRow("Cancel") << QStringLiteral("cancel") << false;
    QTest::newRow("Esc") << ControlSpot::dismiss() << false;
}

void tst_WhatCounts::aFieldToTypeIntoIsClosedByAnythingButADismissal()
{
    QFETCH(QString, used);
    QFETCH(bool, counts);
    const QString key = QStringLiteral("Properties");
    Played played;
    played.editor.m_inert = QStringList{QStringLiteral("name")};
    played.editor.m_controls.insert(key, Played::spot("Properties", "name"));
    played.editor.m_ways = {
        {{key, QStringLiteral("cancel")}, QStringLiteral("click"), key, Way::Does::kCloses, key, true},
        {{key, QStringLiteral("ok")}, QStringLiteral("click"), key, Way::Does::kCloses, key, false}};
    played.editor.open(key);
    played.play({Played::item(1, "Properties", "windowState,Properties,close", "keyboard"),
                 QStringLiteral(R"("id":2)")});
    played.editor.m_cause = {key, used};
    played.editor.close(key);
    QCOMPARE(played.id(), counts ? 2 : 1);
}

void tst_WhatCounts::escStandsForTheButtonThatDropsToo()
{
    const QString key = QStringLiteral("Properties");
    const ControlSpot cancel{key, QStringLiteral("cancel")};
    const ControlSpot ok{key, QStringLiteral("ok")};
    const ControlSpot esc{key, ControlSpot::dismiss()};
    for (const ControlSpot &pointed : {cancel, ok}) {
        Played played;
        played.editor.m_ways = {{cancel, QStringLiteral("click"), key, Way::Does::kCloses, key, true},
                                {ok, QStringLiteral("click"), key, Way::Does::kCloses, key, false},
                                {esc, QStringLiteral("click"), key, Way::Does::kCloses, key, true}};
        played.editor.m_controls.insert(key, pointed);
        played.editor.open(key);
        played.play(
            {Played::item(1, "Properties", "windowState,Properties,close"), QStringLiteral(R"("id":2)")});
        played.editor.m_cause = esc;
        played.editor.close(key);
        QCOMPARE(played.id(), pointed == cancel ? 2 : 1);
    }
}

void tst_WhatCounts::aDoubleClickOnARowStandsForTheButtonThatKeepsToo_data()
{
    QTest::addColumn<QString>("pointed");
    QTest::addColumn<QString>("used");
    QTest::addColumn<bool>("counts");
    const QString ok = QStringLiteral("ok");
    QTest::newRow("a row for OK") << ok << QStringLiteral("rows") << true;
    QTest::newRow("a row for Cancel") << QStringLiteral("cancel") << QStringLiteral("rows") << false;
    QTest::newRow("another button for OK") << ok << QStringLiteral("begin") << false;
}

void tst_WhatCounts::aDoubleClickOnARowStandsForTheButtonThatKeepsToo()
{
    QFETCH(QString, pointed);
    QFETCH(QString, used);
    QFETCH(bool, counts);
    const QString key = QStringLiteral("Chooser");
    const auto closing = [&key](const char *control, const char *icon, bool drops) {
        return Way{
            Played::spot("Chooser", control), QString::fromLatin1(icon), key, Way::Does::kCloses, key, drops};
    };
    Played played;
    played.editor.m_ways = {closing("ok", "click", false), closing("cancel", "click", true),
                            closing("begin", "click", false), closing("rows", "doubleClick", false)};
    played.editor.m_controls.insert(key, {key, pointed});
    played.editor.open(key);
    played.play({Played::item(1, "Chooser", "windowState,Chooser,close"), QStringLiteral(R"("id":2)")});
    played.editor.m_cause = {key, used, 3};
    played.editor.close(key);
    QCOMPARE(played.id(), counts ? 2 : 1);
}

void tst_WhatCounts::aDragIsWhatTheHintAsksFor_data()
{
    QTest::addColumn<QString>("hint");
    QTest::addColumn<QString>("done");
    QTest::addColumn<bool>("counts");
    const QString drag = QStringLiteral("Press here and drag to the right.");
    const QString click = QStringLiteral("Click here.");
    QTest::newRow("drag") << drag << QStringLiteral("drag") << true;
    QTest::newRow("click where a drag is asked for") << drag << QStringLiteral("click") << false;
    QTest::newRow("click") << click << QStringLiteral("click") << true;
    QTest::newRow("drag where a click is asked for") << click << QStringLiteral("drag") << true;
}

void tst_WhatCounts::aDragIsWhatTheHintAsksFor()
{
    QFETCH(QString, hint);
    QFETCH(QString, done);
    QFETCH(bool, counts);
    Played played;
    played.editor.m_controls.insert(QStringLiteral("MainWindow"), Played::spot("MainWindow", "map", 5));
    played.play({Played::item(1, "MainWindow", "mouseEvent,Map,click", "click", hint.toUtf8().constData()),
                 QStringLiteral(R"("id":2)")});
    played.use("MainWindow", "map", 5);
    played.editor.report(QStringLiteral("pressed"), QStringLiteral("0"), QStringLiteral("0"));
    played.turn();
    played.editor.report(QStringLiteral("mouseEvent"), QStringLiteral("Map"), done);
    QCOMPARE(played.id(), counts ? 2 : 1);
}

void tst_WhatCounts::theEndOfAPressBelongsToItsStep()
{
    Played played;
    played.editor.m_controls.insert(QStringLiteral("MainWindow"), Played::spot("MainWindow", "map", 5));
    played.play({Played::item(1, "MainWindow", "pressed,0,0"),
                 Played::item(2, "MainWindow", "mouseEvent,Map,click"), QStringLiteral(R"("id":3)")});
    const auto press = [&played] {
        played.use("MainWindow", "map", 5);
        played.editor.report(QStringLiteral("pressed"), QStringLiteral("0"), QStringLiteral("0"));
    };
    const auto release = [&played] {
        played.use("MainWindow", "map", 5);
        played.editor.report(QStringLiteral("mouseEvent"), QStringLiteral("Map"), QStringLiteral("drag"));
    };
    press();
    QCOMPARE(played.id(), 2);
    // What the stroke goes on to draw is no wrong move in the next step.
    played.editor.m_data = QStringLiteral("a stroke more");
    release();
    played.turn();
    QCOMPARE(played.id(), 2);
    QVERIFY(!played.session.canPutBack());
    press();
    release();
    QCOMPARE(played.id(), 3);
}

void tst_WhatCounts::theEntryOfAnotherMenuDoesNotCount()
{
    Played played;
    played.editor.m_controls.insert(QStringLiteral("MainWindow"), Played::spot("MainWindow", "maps", 3));
    played.editor.m_controls.insert(QStringLiteral("Menu"), Played::spot("Menu", "MapPopup/newMap"));
    played.play({Played::item(1, "MainWindow", "popup,MapPopup", "rightClick"),
                 Played::item(2, "Menu", "windowState,MapProperties,open"), QStringLiteral(R"("id":3)")});
    played.use("MainWindow", "maps", 3);
    played.editor.popUp(QStringLiteral("MapPopup"));
    QCOMPARE(played.id(), 2);
    played.turn();
    played.editor.closeMenu();
    // The menu of another row, and its entry, in one turn.
    played.use("MainWindow", "maps", 1);
    played.editor.popUp(QStringLiteral("MapPopup"));
    played.editor.m_cause = Played::spot("Menu", "MapPopup/newMap");
    played.editor.closeMenu();
    played.editor.open(QStringLiteral("MapProperties"));
    QCOMPARE(played.id(), 2);
}

void tst_WhatCounts::offersHelpAfterThreeWrongClicks()
{
    Played played;
    QSignalSpy offered(&played.session, &LessonSession::helpOffered);
    played.editor.m_controls.insert(QStringLiteral("MainWindow"), Played::spot("MainWindow", "tiles", 1));
    played.play({Played::item(1, "MainWindow", "list,1")});
    for (int click = 1; click <= 4; ++click) {
        played.use("MainWindow", "tiles", 2);
        played.editor.report(QStringLiteral("list"), QStringLiteral("2"));
        QCOMPARE(offered.size(), click < 3 ? 0 : 1);
    }
}

void tst_WhatCounts::oneClickIsOneWrongMove()
{
    Played played;
    QSignalSpy offered(&played.session, &LessonSession::helpOffered);
    played.editor.m_controls.insert(QStringLiteral("MainWindow"), Played::spot("MainWindow", "tiles", 1));
    played.play({Played::item(1, "MainWindow", "list,1")});
    played.use("MainWindow", "new");
    played.editor.open(QStringLiteral("NewProject"));
    played.editor.report(QStringLiteral("action"), QStringLiteral("new"), QStringLiteral("open"));
    played.editor.report(QStringLiteral("action"), QStringLiteral("new"), QStringLiteral("open"));
    QCOMPARE(offered.size(), 0);
}

void tst_WhatCounts::typingIsNoWrongClick()
{
    Played played;
    QSignalSpy offered(&played.session, &LessonSession::helpOffered);
    played.editor.m_controls.insert(QStringLiteral("MainWindow"), Played::spot("MainWindow", "name"));
    played.play({Played::item(1, "MainWindow", "textLength,name,9", "keyboard")});
    for (int length = 1; length < 6; ++length) {
        played.use("MainWindow", "other");
        played.editor.report(QStringLiteral("textLength"), QStringLiteral("other"), QString::number(length));
    }
    QCOMPARE(offered.size(), 0);
}

void tst_WhatCounts::offersHelpAfterAWhile_data()
{
    QTest::addColumn<QByteArray>("condition");
    QTest::addColumn<QByteArray>("icon");
    QTest::newRow("a step that waits for the editor") << QByteArray("list,1") << QByteArray("click");
    QTest::newRow("a click before Next") << QByteArray("click,") << QByteArray("click");
    QTest::newRow("typing before Next") << QByteArray("click,") << QByteArray("keyboard");
}

void tst_WhatCounts::offersHelpAfterAWhile()
{
    QFETCH(const QByteArray, condition);
    QFETCH(const QByteArray, icon);
    Played played;
    QSignalSpy offered(&played.session, &LessonSession::helpOffered);
    played.session.setHelpAfterMs(20);
    played.play({Played::item(1, "MainWindow", condition.constData(), icon.constData())});
    QVERIFY(offered.wait(5000));
}

void tst_WhatCounts::offersHelpWithAClickBeforeNext()
{
    Played played;
    QSignalSpy offered(&played.session, &LessonSession::helpOffered);
    played.editor.m_controls.insert(QStringLiteral("MainWindow"), Played::spot("MainWindow", "add"));
    played.play({Played::item(1, "MainWindow", "click,"), QStringLiteral(R"("id":2)")});
    for (int click = 1; click <= 3; ++click) {
        played.use("MainWindow", "tiles", 2);
        played.editor.report(QStringLiteral("list"), QStringLiteral("2"));
    }
    QCOMPARE(offered.size(), 1);
    played.session.showMe();
    QVERIFY(played.editor.m_performed.isEmpty());
    played.session.showMe();
    QCOMPARE(played.editor.m_performed.size(), 1);
    QCOMPARE(played.editor.m_performed.constFirst().spot, Played::spot("MainWindow", "add"));
    QCOMPARE(played.id(), 2);
}

void tst_WhatCounts::offersNoHelpWhereNothingIsToBeDone()
{
    Played played;
    QSignalSpy offered(&played.session, &LessonSession::helpOffered);
    played.session.setHelpAfterMs(1);
    played.play({Played::item(1, "MainWindow", "click,", "eye")});
    QVERIFY(!offered.wait(50));
}

QTEST_GUILESS_MAIN(tst_WhatCounts)
#include "tst_WhatCounts.moc"
