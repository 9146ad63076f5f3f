#include "SampleEditor.h"

/// Events on the map and in their windows, as a person uses them, with mouse and keyboard.
class tst_EventWindows : public QObject
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
    void pagesAreTabs();
    void fieldsOfAPageAreKept();
    void aCommandIsChosenAndWritten();
    void aCommandWithoutAFormIsInsertedAtOnce();
    void aTabOfCommandsBeginsAtItsFirst();
    void aCommandIsEditedAndCancelled();
    void everyCommandOfTheSampleOpensItsForm();
    void theWayIsWrittenWithButtons();
    void aPlaceIsChosenOnTheMap();
    void aDoubleClickOnACellTakesThePlace();
    void quickEventsComeFromTheMenu_data();
    void quickEventsComeFromTheMenu();
    void quickEventsComeFromTheToolBar_data();
    void quickEventsComeFromTheToolBar();
    void theToolBarMakesEventsOnFreeCellsAlone();
    void goodsOfAShop();
    void foundEventsAreShown();
    void aMessageIsDrawn();

private:
    static void begin(SampleEditor &editor)
    {
        editor.click("MainWindow", "modeEvent");
        editor.takeTold();
    }

    static QPoint centreOf(const QPoint &cell) { return cell * 32 + QPoint(16, 16); }

    static void clickCell(const SampleEditor &editor, const QPoint &cell,
                          Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(editor.map(), button, {}, centreOf(cell));
    }

    static void openCell(const SampleEditor &editor, const QPoint &cell)
    {
        clickCell(editor, cell);
        QTest::mouseDClick(editor.map(), Qt::LeftButton, {}, centreOf(cell));
    }

    static QJsonArray events(const SampleEditor &editor)
    {
        return editor.value("Map001", "/events").toArray();
    }

    /// A cell of the first map that holds no event.
    static constexpr QPoint kFree{2, 7};
};

void tst_EventWindows::initTestCase()
{
    // What stands at one place in two windows is clicked faster here than by a hand, and on purpose.
    QApplication::setDoubleClickInterval(0);
}

void tst_EventWindows::aDoubleClickOnAFreeCellMakesAnEvent()
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

void tst_EventWindows::cancelDropsTheNewEvent()
{
    SampleEditor editor;
    begin(editor);
    const QJsonArray before = events(editor);
    openCell(editor, kFree);
    editor.click("EventEditorMain", "cancel");
    QCOMPARE(events(editor), before);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
}

void tst_EventWindows::inMapModeADoubleClickDraws()
{
    SampleEditor editor;
    editor.clickRow("MainWindow", "tiles", 4);
    const QJsonValue before = editor.value("Map001", "/data");
    openCell(editor, kFree);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QVERIFY(editor.value("Map001", "/data") != before);
}

void tst_EventWindows::aDragMovesAnEvent()
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

void tst_EventWindows::keysCopyPasteAndDelete()
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
    QTest::keyClick(editor.map(), Qt::Key_Delete);
    QCOMPARE(events(editor).size(), before);
    QTest::keyClick(editor.map(), Qt::Key_Return);
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("EventEditorMain")}));
}

void tst_EventWindows::theMenuIsThatOfTheMode()
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

void tst_EventWindows::aCommandIsChosenAndWritten()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    QCOMPARE(editor.texts("EventEditorMain", "commands"), QStringList{str("+")});
    editor.openRow("EventEditorMain", "commands", 0);
    QCOMPARE(editor->openWindows().last(), str("EventCommandSelect"));
    editor.clickTab("EventCommandSelect", "tabs", 0);
    editor.takeTold();
    editor.openRow("EventCommandSelect", "commands", 0);
    QCOMPARE(editor.takeTold().mid(1), closed("EventCommandSelect") + opened("EventCommand"));
    editor.find<QPlainTextEdit>("EventCommand", "101/lines")->setPlainText(str("Woof!\nWoof!"));
    editor.click("EventCommand", "ok");
    QCOMPARE(editor.texts("EventEditorMain", "commands").size(), 2);
    QVERIFY(editor.texts("EventEditorMain", "commands").at(0).contains(str("Woof! Woof!")));
    QCOMPARE(editor.find<RowList>("EventEditorMain", "commands")->currentRow(), 1);
    editor.click("EventEditorMain", "ok");
    const QJsonValue list = events(editor).last()[QLatin1String("pages")][0][QLatin1String("list")];
    QCOMPARE(list.toArray().size(), 4);
    QCOMPARE(list[2][QLatin1String("parameters")], QJsonArray{str("Woof!")});
}

void tst_EventWindows::aCommandWithoutAFormIsInsertedAtOnce()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.openRow("EventEditorMain", "commands", 0);
    editor.clickTab("EventCommandSelect", "tabs", 1);
    const QStringList names = editor.texts("EventCommandSelect", "commands");
    editor.openRow("EventCommandSelect", "commands", int(names.indexOf(str("Loop"))));
    QCOMPARE(editor->openWindows().last(), str("EventEditorMain"));
    const QStringList rows = editor.texts("EventEditorMain", "commands");
    QCOMPARE(rows.size(), 4);
    QCOMPARE(rows.at(1), str("    +"));
    QCOMPARE(rows.at(3), str("+"));
}

void tst_EventWindows::aTabOfCommandsBeginsAtItsFirst()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.openRow("EventEditorMain", "commands", 0);
    const auto *commands = editor.find<RowList>("EventCommandSelect", "commands");
    editor.clickTab("EventCommandSelect", "tabs", 1);
    QCOMPARE(commands->currentRow(), 0);
    editor.clickRow("EventCommandSelect", "commands", 6);
    editor.clickTab("EventCommandSelect", "tabs", 0);
    QCOMPARE(commands->currentRow(), 0);
    // The tab with the command that was chosen last shows it again.
    editor.clickTab("EventCommandSelect", "tabs", 1);
    QCOMPARE(commands->currentRow(), 6);
}

void tst_EventWindows::aCommandIsEditedAndCancelled()
{
    SampleEditor editor;
    begin(editor);
    const QJsonArray before = events(editor);
    for (int number = 1; number < before.size(); ++number) {
        const QJsonValue event = before.at(number);
        openCell(editor, {event[QLatin1String("x")].toInt(), event[QLatin1String("y")].toInt()});
        QCOMPARE(editor->openWindows().last(), str("EventEditorMain"));
        editor.openRow("EventEditorMain", "commands", 0);
        if (editor->openWindows().last() != str("EventEditorMain")) {
            editor->close(editor->openWindows().last());
        }
        editor.click("EventEditorMain", "ok");
    }
    QCOMPARE(events(editor), before);
    QVERIFY(!editor->project()->isModified());
}

void tst_EventWindows::everyCommandOfTheSampleOpensItsForm()
{
    SampleEditor editor;
    begin(editor);
    const QJsonArray before = events(editor);
    int forms = 0;
    for (int number = 1; number < before.size(); ++number) {
        const QJsonValue event = before.at(number);
        openCell(editor, {event[QLatin1String("x")].toInt(), event[QLatin1String("y")].toInt()});
        const int rows = int(editor.texts("EventEditorMain", "commands").size());
        for (int row = 0; row < rows; ++row) {
            editor.openRow("EventEditorMain", "commands", row);
            if (editor->openWindows().last() == str("EventCommand")) {
                ++forms;
                editor.click("EventCommand", "ok");
            } else if (editor->openWindows().last() == str("EventCommandSelect")) {
                editor.click("EventCommandSelect", "cancel");
            }
            QCOMPARE(editor->openWindows().last(), str("EventEditorMain"));
        }
        editor.click("EventEditorMain", "ok");
    }
    QVERIFY(forms > 20);
    // OK in a form that nobody touched changes nothing.
    QCOMPARE(events(editor), before);
    QVERIFY(!editor->project()->isModified());
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

void tst_EventWindows::quickEventsComeFromTheMenu_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QByteArray>("window");
    QTest::newRow("passage") << QByteArray("quickTransfer") << QByteArray("QuickTransfer");
    QTest::newRow("inn") << QByteArray("quickInn") << QByteArray("QuickInn");
    QTest::newRow("treasure") << QByteArray("quickTreasure") << QByteArray("QuickTreasure");
    QTest::newRow("resting place") << QByteArray("quickBase") << QByteArray("QuickBase");
}

void tst_EventWindows::quickEventsComeFromTheMenu()
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

void tst_EventWindows::quickEventsComeFromTheToolBar_data()
{
    quickEventsComeFromTheMenu_data();
}

void tst_EventWindows::quickEventsComeFromTheToolBar()
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

void tst_EventWindows::theToolBarMakesEventsOnFreeCellsAlone()
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

void tst_EventWindows::goodsOfAShop()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.openRow("EventEditorMain", "commands", 0);
    editor.clickTab("EventCommandSelect", "tabs", 4);
    const QStringList names = editor.texts("EventCommandSelect", "commands");
    editor.openRow("EventCommandSelect", "commands", int(names.indexOf(str("Shop"))));
    QCOMPARE(editor.texts("EventCommand", "302/goods").size(), 1);
    editor.click("EventCommand", "302/add");
    QCOMPARE(editor->openWindows().last(), str("Merchandise"));
    editor.choose("Merchandise", "kind", 1);
    editor.choose("Merchandise", "weapon", 1);
    editor.click("Merchandise", "ownPrice");
    editor.setNumber("Merchandise", "price", 77);
    editor.click("Merchandise", "ok");
    QCOMPARE(editor.texts("EventCommand", "302/goods").size(), 2);
    QVERIFY(editor.texts("EventCommand", "302/goods").at(1).endsWith(str("77")));
    editor.click("EventCommand", "302/add");
    editor.click("Merchandise", "cancel");
    editor.click("EventCommand", "ok");
    editor.click("EventEditorMain", "ok");
    const QJsonValue list = events(editor).last()[QLatin1String("pages")][0][QLatin1String("list")];
    QCOMPARE(list.toArray().size(), 3);
    QCOMPARE(list[1][QLatin1String("code")], QJsonValue(605));
    QCOMPARE(list[1][QLatin1String("parameters")], (QJsonArray{1, 2, 1, 77}));
}

void tst_EventWindows::foundEventsAreShown()
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

void tst_EventWindows::aMessageIsDrawn()
{
    SampleEditor editor;
    begin(editor);
    openCell(editor, kFree);
    editor.openRow("EventEditorMain", "commands", 0);
    editor.clickTab("EventCommandSelect", "tabs", 0);
    editor.openRow("EventCommandSelect", "commands", 0);
    const auto picture = [&editor] {
        editor.click("EventCommand", "101/preview");
        const QImage image = editor.find<QWidget>("TextPreview", "preview")->grab().toImage();
        editor.click("TextPreview", "close");
        return image;
    };
    const QImage empty = picture();
    editor.find<QPlainTextEdit>("EventCommand", "101/lines")->setPlainText(str("Woof!"));
    const QImage atTheBottom = picture();
    QVERIFY(atTheBottom != empty);
    editor.choose("EventCommand", "101/place", 0);
    QVERIFY(picture() != atTheBottom);
}

QTEST_MAIN(tst_EventWindows)
#include "tst_EventWindows.moc"
