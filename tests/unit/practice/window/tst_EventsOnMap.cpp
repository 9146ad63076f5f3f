#include "EventHands.h"

using namespace EventHands;

/// Events on the map, as a person makes, moves, copies and finds them.
class tst_EventsOnMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aDoubleClickOnAFreeCellMakesAnEvent();
    void cancelDropsTheNewEvent();
    void inMapModeADoubleClickDraws();
    void aDragMovesAnEvent();
    void keysCopyPasteAndDelete();
    void theMenuIsThatOfTheMode();
    void quickEventsComeFromTheMenu_data();
    void quickEventsComeFromTheMenu();
    void quickEventsComeFromTheToolBar_data();
    void quickEventsComeFromTheToolBar();
    void theToolBarMakesEventsOnFreeCellsAlone();
    void foundEventsAreShown();
};

void tst_EventsOnMap::initTestCase()
{
    // What stands at one place in two windows is clicked faster here than by a hand, and on purpose.
    QApplication::setDoubleClickInterval(0);
}

void tst_EventsOnMap::aDoubleClickOnAFreeCellMakesAnEvent()
{
    SampleEditor editor;
    begin(editor);
    const int before = int(events(editor).size());
    openCell(editor, kFree);
    QCOMPARE(editor.takeTold(), (QStringList{str("pressed,0,0 in MainWindowClient_mapEditorView"),
                                             str("mouseEvent,Map,click in MainWindowClient_mapEditorView")} +
                                 opened("EventEditorMain")));
    editor.type("EventEditorMain", "name", str("Pip's dog"));
    editor.click("EventEditorMain", "ok");
    QCOMPARE(events(editor).size(), before + 1);
    QCOMPARE(events(editor).last()[QLatin1String("name")], QJsonValue(str("Pip's dog")));
    QCOMPARE(events(editor).last()[QLatin1String("x")], QJsonValue(kFree.x()));
    editor.click("MainWindow", "editUndo");
    QCOMPARE(events(editor).size(), before);
}

void tst_EventsOnMap::cancelDropsTheNewEvent()
{
    SampleEditor editor;
    begin(editor);
    const QJsonArray before = events(editor);
    openCell(editor, kFree);
    editor.click("EventEditorMain", "cancel");
    QCOMPARE(events(editor), before);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
}

void tst_EventsOnMap::inMapModeADoubleClickDraws()
{
    SampleEditor editor;
    editor.clickRow("MainWindow", "tiles", 4);
    const QJsonValue before = editor.value("Map001", "/data");
    openCell(editor, kFree);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QVERIFY(editor.value("Map001", "/data") != before);
}

void tst_EventsOnMap::aDragMovesAnEvent()
{
    SampleEditor editor;
    begin(editor);
    const QPoint from(events(editor).at(1)[QLatin1String("x")].toInt(),
                      events(editor).at(1)[QLatin1String("y")].toInt());
    QTest::mousePress(editor.map(), Qt::LeftButton, {}, centreOf(from));
    QMouseEvent move(QEvent::MouseMove, centreOf(kFree), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.map(), &move);
    QTest::mouseRelease(editor.map(), Qt::LeftButton, {}, centreOf(kFree));
    QCOMPARE(events(editor).at(1)[QLatin1String("x")], QJsonValue(kFree.x()));
    QCOMPARE(events(editor).at(1)[QLatin1String("y")], QJsonValue(kFree.y()));
    editor.click("MainWindow", "editUndo");
    QCOMPARE(events(editor).at(1)[QLatin1String("x")], QJsonValue(from.x()));
}

void tst_EventsOnMap::keysCopyPasteAndDelete()
{
    SampleEditor editor;
    begin(editor);
    const int before = int(events(editor).size());
    const QPoint from(events(editor).at(1)[QLatin1String("x")].toInt(),
                      events(editor).at(1)[QLatin1String("y")].toInt());
    editor.map()->setFocus();
    clickCell(editor, from);
    QTest::keyClick(editor.map(), Qt::Key_C, Qt::ControlModifier);
    clickCell(editor, kFree);
    QTest::keyClick(editor.map(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(events(editor).size(), before + 1);
    QCOMPARE(events(editor).last()[QLatin1String("pages")], events(editor).at(1)[QLatin1String("pages")]);
    // Some desktops have it for one more key of deleting.
    QTest::keyClick(editor.map(), Qt::Key_D, Qt::ControlModifier);
    QCOMPARE(events(editor).size(), before + 1);
    QTest::keyClick(editor.map(), Qt::Key_Delete);
    QCOMPARE(events(editor).size(), before);
    QTest::keyClick(editor.map(), Qt::Key_Return);
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("EventEditorMain")}));
}

void tst_EventsOnMap::theMenuIsThatOfTheMode()
{
    SampleEditor editor;
    clickCell(editor, kFree, Qt::RightButton);
    QVERIFY(editor.takeTold().contains(str("popup,MapViewPopup, in Menu")));
    begin(editor);
    clickCell(editor, kFree, Qt::RightButton);
    QVERIFY(editor.takeTold().contains(str("popup,EventPopup, in Menu")));
    QVERIFY(editor.find<QAbstractButton>("EventPopup", "newEvent")->isEnabled());
    QVERIFY(!editor.find<QAbstractButton>("EventPopup", "editEvent")->isEnabled());
    QVERIFY(!editor.find<QAbstractButton>("EventPopup", "deleteEvent")->isEnabled());
}

void tst_EventsOnMap::quickEventsComeFromTheMenu_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QByteArray>("window");
    QTest::newRow("passage") << QByteArray("quickTransfer") << QByteArray("QuickTransfer");
    QTest::newRow("inn") << QByteArray("quickInn") << QByteArray("QuickInn");
    QTest::newRow("treasure") << QByteArray("quickTreasure") << QByteArray("QuickTreasure");
    QTest::newRow("resting place") << QByteArray("quickBase") << QByteArray("QuickBase");
}

void tst_EventsOnMap::quickEventsComeFromTheMenu()
{
    QFETCH(QByteArray, entry);
    QFETCH(QByteArray, window);
    SampleEditor editor;
    begin(editor);
    const int before = int(events(editor).size());
    clickCell(editor, kFree, Qt::RightButton);
    editor.click("EventPopup", entry.constData());
    QCOMPARE(editor->openWindows().last(), QString::fromLatin1(window));
    editor.click(window.constData(), "ok");
    QCOMPARE(events(editor).size(), before + 1);
    editor.click("MainWindow", "editUndo");
    QCOMPARE(events(editor).size(), before);
}

void tst_EventsOnMap::quickEventsComeFromTheToolBar_data()
{
    quickEventsComeFromTheMenu_data();
}

void tst_EventsOnMap::quickEventsComeFromTheToolBar()
{
    QFETCH(QByteArray, entry);
    QFETCH(QByteArray, window);
    SampleEditor editor;
    begin(editor);
    const int before = int(events(editor).size());
    clickCell(editor, kFree);
    editor.takeTold();
    editor.click("MainWindow", entry.constData());
    QVERIFY(editor.takeTold().contains(
        QStringLiteral("action,%1,open in MainWindow").arg(QString::fromLatin1(entry))));
    QCOMPARE(editor->openWindows().last(), QString::fromLatin1(window));
    editor.click(window.constData(), "ok");
    QCOMPARE(events(editor).size(), before + 1);
    QCOMPARE(events(editor).last()[QLatin1String("x")].toInt(), kFree.x());
    QCOMPARE(events(editor).last()[QLatin1String("y")].toInt(), kFree.y());
}

void tst_EventsOnMap::theToolBarMakesEventsOnFreeCellsAlone()
{
    SampleEditor editor;
    begin(editor);
    const auto *inn = editor.find<QAbstractButton>("MainWindow", "quickInn");
    clickCell(editor, kFree);
    QVERIFY(inn->isEnabled());
    editor.click("MainWindow", "quickInn");
    editor.click("QuickInn", "ok");
    QVERIFY(!inn->isEnabled());
    clickCell(editor, kFree + QPoint(1, 0));
    QVERIFY(inn->isEnabled());
    editor.click("MainWindow", "modeMap");
    QVERIFY(!inn->isEnabled());
}

void tst_EventsOnMap::foundEventsAreShown()
{
    SampleEditor editor;
    editor.click("MainWindow", "eventSearch");
    QCOMPARE(editor.takeTold(),
             (opened("EventSearcher") + QStringList{str("action,eventSearch,open in MainWindow")}));
    editor.choose("EventSearcher", "by", 1);
    editor.choose("EventSearcher", "switch", 3);
    const QStringList found = editor.texts("EventSearcher", "found");
    QVERIFY(!found.isEmpty());
    editor.openRow("EventSearcher", "found", int(found.size()) - 1);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QVERIFY(editor->project()->tools().isEventMode());
    const QPoint cell = editor->project()->board().cursor();
    QVERIFY2(found.last().endsWith(str("(%1, %2)").arg(cell.x()).arg(cell.y())), qPrintable(found.last()));
    QVERIFY(!editor->project()->isModified());
}

QTEST_MAIN(tst_EventsOnMap)
#include "tst_EventsOnMap.moc"
