#include "EventHands.h"

using namespace EventHands;

/// Pages, ways and places of an event in their windows, as a person uses them.
class tst_EventWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pagesAreTabs();
    void fieldsOfAPageAreKept();
    void theWayIsWrittenWithButtons();
    void aPlaceIsChosenOnTheMap();
    void aDoubleClickOnACellTakesThePlace();
};

void tst_EventWindows::initTestCase()
{
    // What stands at one place in two windows is clicked faster here than by a hand, and on purpose.
    QApplication::setDoubleClickInterval(0);
}

void tst_EventWindows::pagesAreTabs()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    auto *tabs = editor.find<QTabBar>("EventEditorMain", "pages");
    QCOMPARE(tabs->count(), 1);
    QVERIFY(!editor.find<QAbstractButton>("EventEditorMain", "deletePage")->isEnabled());
    editor.takeTold();
    editor.click("EventEditorMain", "newPage");
    QCOMPARE(editor.takeTold(), QStringList{str("action,eventPageNew, in EventEditorMain")});
    QCOMPARE(tabs->count(), 2);
    QCOMPARE(tabs->currentIndex(), 1);
    editor.clickTab("EventEditorMain", "pages", 0);
    QVERIFY(editor.takeTold().contains(str("tabView,tabview,0 in EventEditorMain")));
    QTest::mouseClick(tabs, Qt::RightButton, {}, tabs->tabRect(1).center());
    QVERIFY(editor.takeTold().contains(str("popup,EventPagePopup, in Menu")));
    editor.click("EventPagePopup", "deletePage");
    QCOMPARE(tabs->count(), 1);
}

void tst_EventWindows::fieldsOfAPageAreKept()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.choose("EventEditorMain", "moveType", 3);
    QVERIFY(editor.takeTold().contains(str("comboBox,moveType,3 in EventEditorMain")));
    QVERIFY(editor.find<QAbstractButton>("EventEditorMain", "route")->isEnabled());
    editor.click("EventEditorMain", "directionFix");
    QVERIFY(editor.takeTold().contains(str("checked,directionFix,1 in EventEditorMain")));
    editor.choose("EventEditorMain", "selfSwitch", 2);
    editor.choose("EventEditorMain", "switch", 2);
    editor.choose("EventEditorMain", "trigger", 1);
    editor.click("EventEditorMain", "apply");
    const QJsonValue page = events(editor).last()[QLatin1String("pages")][0];
    QCOMPARE(page[QLatin1String("moveType")], QJsonValue(3));
    QCOMPARE(page[QLatin1String("directionFix")], QJsonValue(true));
    QCOMPARE(page[QLatin1String("trigger")], QJsonValue(1));
    QCOMPARE(page[QLatin1String("conditions")][QLatin1String("selfSwitch")], QJsonValue(str("B")));
    QCOMPARE(page[QLatin1String("conditions")][QLatin1String("switchId")], QJsonValue(2));
    QVERIFY(page[QLatin1String("through")].isUndefined());
}

void tst_EventWindows::theWayIsWrittenWithButtons()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.choose("EventEditorMain", "moveType", 3);
    editor.click("EventEditorMain", "route");
    editor.click("MovementRoute", "moveRight");
    editor.click("MovementRoute", "moveUp");
    editor.click("MovementRoute", "wait");
    QCOMPARE(editor->openWindows().last(), str("MovementCommand"));
    editor.setNumber("MovementCommand", "frames", 45);
    editor.click("MovementCommand", "ok");
    editor.click("MovementRoute", "jump");
    editor.click("MovementCommand", "cancel");
    QCOMPARE(editor.texts("MovementRoute", "steps"),
             (QStringList{str("Right"), str("Up"), str("Wait 45 frames"), str("+")}));
    editor.click("MovementRoute", "preview");
    QCOMPARE(editor->openWindows().last(), str("MovementPreview"));
    editor.click("MovementPreview", "close");
    editor.click("MovementRoute", "skippable");
    QVERIFY(editor.takeTold().contains(str("checked,skippable,1 in MovementRoute")));
    editor.click("MovementRoute", "ok");
    editor.click("EventEditorMain", "ok");
    const QJsonValue route = events(editor).last()[QLatin1String("pages")][0][QLatin1String("moveRoute")];
    QCOMPARE(route[QLatin1String("list")].toArray().size(), 4);
    QCOMPARE(route[QLatin1String("list")][2][QLatin1String("parameters")], QJsonArray{45});
    QCOMPARE(route[QLatin1String("skippable")], QJsonValue(true));
}

void tst_EventWindows::aPlaceIsChosenOnTheMap()
{
    SampleEditor editor;
    begin(editor);
    clickCell(editor, kFree, Qt::RightButton);
    editor.click("EventPopup", "quickTransfer");
    editor.click("QuickTransfer", "choosePlace");
    editor.clickRow("Location", "maps", 1);
    QVERIFY(editor.takeTold().contains(str("list,1, in Location")));
    auto *cell = editor.find<QWidget>("Location", "cell");
    QTest::mouseClick(cell, Qt::LeftButton, {}, cell->rect().center());
    QTest::keyClick(cell, Qt::Key_Right);
    const int x = editor.find<QSpinBox>("Location", "x")->value();
    const int y = editor.find<QSpinBox>("Location", "y")->value();
    QVERIFY(x > 0 && y > 0);
    const int map = editor->project()->sources().rows(str("maps"), editor->project()->files()).at(1).number;
    editor.click("Location", "ok");
    editor.click("QuickTransfer", "ok");
    const QJsonValue list = events(editor).last()[QLatin1String("pages")][0][QLatin1String("list")];
    QCOMPARE(list[0][QLatin1String("parameters")], (QJsonArray{0, map, x, y, 0, 0}));
    // Choosing a place shows no other map.
    QCOMPARE(editor->project()->board().number(), 1);
}

void tst_EventWindows::aDoubleClickOnACellTakesThePlace()
{
    SampleEditor editor;
    begin(editor);
    clickCell(editor, kFree, Qt::RightButton);
    editor.click("EventPopup", "quickTransfer");
    editor.click("QuickTransfer", "choosePlace");
    auto *cell = editor.find<QWidget>("Location", "cell");
    const QPoint middle = cell->rect().center();
    // A second click beside the first one only chooses.
    QTest::mouseClick(cell, Qt::LeftButton, {}, middle - QPoint(60, 60));
    QTest::mouseDClick(cell, Qt::LeftButton, {}, middle);
    QVERIFY(editor->openWindows().contains(str("Location")));
    QTest::mouseClick(cell, Qt::LeftButton, {}, middle);
    const int x = editor.find<QSpinBox>("Location", "x")->value();
    QTest::mouseDClick(cell, Qt::LeftButton, {}, middle);
    QVERIFY(!editor->openWindows().contains(str("Location")));
    QVERIFY(x > 0);
    QCOMPARE(editor.find<QSpinBox>("QuickTransfer", "x")->value(), x);
}

QTEST_MAIN(tst_EventWindows)
#include "tst_EventWindows.moc"
