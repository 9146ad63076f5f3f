#include "EditorFixture.h"
#include "host/ControlUse.h"
#include "lesson/LessonWords.h"
#include "lesson/Scenario.h"

#include <QComboBox>

#include <algorithm>

namespace {

ControlSpot spot(const char *window, const char *control, int part = -1)
{
    return {str(window), str(control), part};
}

ControlSpot cell(int column, int row)
{
    return spot("MainWindowClient_mapEditorView", "map", ControlSpot::cell(column, row));
}

/// The control at the middle of a rectangle on the screen, counted from the window's corner.
std::optional<ControlSpot> at(const Editor &editor, const char *window, const QPoint &point)
{
    return editor->controlAt(str(window), point);
}

bool use(const Editor &editor, const ControlSpot &where, ControlUse::Kind kind = ControlUse::Kind::kClick,
         const char *text = "", bool enter = false)
{
    return editor->perform({where, kind, str(text), enter});
}

} // namespace

/// What the windows tell a lesson of their controls.
class tst_GuidedWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheControlAtAPosition();
    void tellsWhereControlsAre();
    void tellsNothingOfWhatCannotBeUsed();
    void whatIsGreyCannotBeUsed();
    void ofSeveralAtOnePlaceTakesTheOneThatTheStepNeeds();
    void tellsHowThingsCameAbout();
    void tellsADragFromAClick();
    void knowsWhatLeadsWhere();
    void escapeDropsWhatAnotherControlGoesOnWith();
    void aGreyEntryLeadsNowhere();
    void knowsWhatAControlBringsAbout_data();
    void knowsWhatAControlBringsAbout();
    void offersTheEntriesThatABoxHas();
    void knowsWhatAControlMeansAtPresent();
    void saysWhatLeadsBack();
    void aSecondPressBehindNextIsSwallowed();
    void theWindowOnTopGetsTheFocusBack();
    void tellsTheTipsOfButtons();
    void knowsWhatALessonNames_data();
    void knowsWhatALessonNames();
};

void tst_GuidedWindows::namesTheControlAtAPosition()
{
    Editor editor;
    editor.openProject();
    QCOMPARE(at(editor, "MainWindow", {40, 20}), spot("MainWindow", "fileNew"));
    QCOMPARE(at(editor, "MainWindow", {128, 142 + 28 + 5}), spot("MainWindow", "tiles", 1));
    QCOMPARE(at(editor, "MainWindow", {128, 120}), spot("MainWindow", "palette", 1));
    QCOMPARE(at(editor, "MapEditTreeBox", {100, 28 + 3 * 24 + 12}), spot("MapEditTreeBox", "maps", 3));
    QCOMPARE(at(editor, "MainWindow", {260 + 2 * 32 + 5, 116 + 32 + 5}), cell(2, 1));
    QVERIFY(!at(editor, "MainWindow", {1, 1}));
    QVERIFY(!at(editor, "Nowhere", {1, 1}));
    // An entry of the menu that is open, and of no other.
    QVERIFY(!at(editor, "Menu", {50, 20}));
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    QCOMPARE(at(editor, "Menu", {50, 45}), spot("Menu", "MapPopup/newMap"));
}

void tst_GuidedWindows::tellsWhereControlsAre()
{
    Editor editor;
    editor.openProject();
    const QPoint origin = *editor->origin(str("MainWindow"));
    QCOMPARE(editor->rectOf(spot("MainWindow", "fileNew"))->topLeft(), origin + QPoint(8, 4));
    QCOMPARE(editor->rectOf(spot("MainWindow", "tiles", 2)),
             QRect(origin + QPoint(8, 142 + 56), QSize(240, 28)));
    QVERIFY(editor->rectOf(spot("MainWindow", "palette", 1))->contains(origin + QPoint(128, 129)));
    QCOMPARE(editor->rectOf(cell(3, 2)), QRect(origin + QPoint(260 + 96, 116 + 64), QSize(32, 32)));
    editor.run("view.zoomIn");
    QCOMPARE(editor->rectOf(cell(3, 2)), QRect(origin + QPoint(260 + 192, 116 + 128), QSize(64, 64)));
    // Out of the view, until it is scrolled there.
    QVERIFY(!editor->rectOf(cell(23, 15)));
    QSignalSpy moved(editor.operator->(), &HostEditor::viewChanged);
    editor->reveal(cell(23, 15));
    QVERIFY(editor->rectOf(cell(23, 15)));
    QVERIFY(!moved.isEmpty());
}

void tst_GuidedWindows::tellsNothingOfWhatCannotBeUsed()
{
    Editor editor;
    editor.openProject();
    QVERIFY(!editor->rectOf(spot("MapProperties", "name")));
    QVERIFY(!editor->rectOf(spot("MainWindow", "nothing")));
    QVERIFY(!editor->rectOf(spot("MainWindow", "tiles", 99)));
    QVERIFY(!editor->rectOf(spot("MapProperties", "@dismiss")));
    editor->open(str("MapProperties"));
    QVERIFY(editor->rectOf(spot("MapProperties", "name")));
    QVERIFY(!editor->rectOf(spot("MainWindow", "fileNew")));
    editor->close(str("MapProperties"));
    // Below a context menu.
    editor.clickRow("MapEditTreeBox", "maps", 0, Qt::RightButton);
    const QRect popup = editor->window(str("MapPopup"))->geometry();
    int covered = 0;
    for (int row = 0; row < 4; ++row) {
        const std::optional<QRect> rect = editor->rectOf(spot("MapEditTreeBox", "maps", row));
        QVERIFY(!rect || !popup.contains(rect->center()));
        covered += rect ? 0 : 1;
    }
    QVERIFY(editor->rectOf(spot("Menu", "MapPopup/newMap")));
    QVERIFY(!editor->rectOf(spot("Menu", "TilePopup/changeTileSet")));
    Q_UNUSED(covered)
}

void tst_GuidedWindows::whatIsGreyCannotBeUsed()
{
    Editor editor;
    editor.openProject();
    const ControlSpot undo = spot("MainWindow", "editUndo");
    QVERIFY(!editor->rectOf(undo));
    QVERIFY(!use(editor, undo));
    QVERIFY(use(editor, spot("MainWindow", "tiles", 4)));
    QVERIFY(use(editor, cell(2, 2)));
    QVERIFY(editor->rectOf(undo));
    QVERIFY(use(editor, undo));
    QVERIFY(!editor->rectOf(undo));
}

void tst_GuidedWindows::ofSeveralAtOnePlaceTakesTheOneThatTheStepNeeds()
{
    Editor editor;
    editor.openProject();
    editor->open(str("DatabaseMain"));
    // On the tab of the actors their class stands where that of the tilesets has their picture.
    Step step;
    step.windowKey = str("DatabaseMain");
    const QPoint corner = QPoint(465, 96) - LessonWords::kTip;
    step.x = corner.x();
    step.y = corner.y();
    const auto pointed = [&editor, &step](const char *condition) {
        step.condition = *Condition::parse(str(condition));
        return editor->controlFor(step).value_or(ControlSpot());
    };
    QCOMPARE(pointed("click,"), spot("DatabaseMain", "actorClass"));
    QCOMPARE(pointed("comboBox,actorClass,1"), spot("DatabaseMain", "actorClass"));
    QCOMPARE(pointed("comboBox,tilesetImage,1"), spot("DatabaseMain", "tilesetImage"));
    // What no control there can bring about is left to the one that shows.
    QCOMPARE(pointed("comboBox,nothing,1"), spot("DatabaseMain", "actorClass"));
    step.x = LessonWords::kNoPosition;
    step.y = LessonWords::kNoPosition;
    QVERIFY(!editor->controlFor(step));
}

void tst_GuidedWindows::tellsHowThingsCameAbout()
{
    Editor editor;
    editor.openProject();
    QVector<EditorEvent> events;
    connect(editor.operator->(), &HostEditor::happened, this,
            [&events](const EditorEvent &event) { events.append(event); });
    const auto last = [&events](const char *type) {
        ControlSpot cause;
        for (const EditorEvent &event : qAsConst(events)) {
            cause = event.type == str(type) ? event.cause : cause;
        }
        events.clear();
        return cause;
    };
    editor.clickRow("MapEditTreeBox", "maps", 2, Qt::RightButton);
    QCOMPARE(last("popup"), spot("MapEditTreeBox", "maps", 2));
    editor.click("MapPopup", "newMap");
    QCOMPARE(last("windowState"), spot("Menu", "MapPopup/newMap"));
    QTest::keyClick(editor.find<QWidget>("MapProperties", "name"), Qt::Key_Return);
    QCOMPARE(last("windowState"), spot("MapProperties", "ok"));
    editor->open(str("MapProperties"));
    QTest::keyClick(editor.find<QWidget>("MapProperties", "name"), Qt::Key_Escape);
    QCOMPARE(last("windowState"), spot("MapProperties", "@dismiss"));
    editor.run("tool.pencil");
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, QPoint(3 * 32 + 5, 2 * 32 + 5));
    QCOMPARE(last("mouseEvent"), cell(3, 2));
    // To fill, all cells are one.
    editor.run("tool.fill");
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, QPoint(3 * 32 + 5, 2 * 32 + 5));
    QCOMPARE(last("mouseEvent"), spot("MainWindowClient_mapEditorView", "map"));
}

void tst_GuidedWindows::tellsADragFromAClick()
{
    Editor editor;
    editor.openProject();
    QVERIFY(use(editor, cell(2, 2)));
    QVERIFY(editor.takeTold().contains(str("mouseEvent,Map,click in MainWindowClient_mapEditorView")));
    for (const char *tool : {"tool.pencil", "tool.rectangle"}) {
        editor.run(tool);
        QVERIFY(use(editor, cell(2, 2), ControlUse::Kind::kDrag));
        QVERIFY(editor.takeTold().contains(str("mouseEvent,Map,drag in MainWindowClient_mapEditorView")));
    }
}

void tst_GuidedWindows::aGreyEntryLeadsNowhere()
{
    Editor editor;
    editor.openProject();
    editor.run("mode.event");
    const auto leads = [&editor](const char *entry) {
        const Ways ways = editor->ways();
        return std::any_of(ways.cbegin(), ways.cend(), [entry](const Way &way) {
            return way.by == spot("Menu", entry) && way.windowKey == str("EventEditorMain");
        });
    };
    QVERIFY(leads("EventPopup/editEvent"));
    // Where no event stands.
    QTest::mouseClick(editor.map(), Qt::RightButton, {}, QPoint(48, 48));
    QCOMPARE(editor->openWindows().constLast(), str("Popup"));
    QVERIFY(leads("EventPopup/newEvent"));
    QVERIFY(!leads("EventPopup/editEvent"));
}

void tst_GuidedWindows::knowsWhatLeadsWhere()
{
    const Editor editor;
    const Ways ways = editor->ways();
    const auto has = [&ways](const ControlSpot &by, const char *icon, const char *from, Way::Does does,
                             const char *to, bool drops) {
        return ways.contains({by, str(icon), str(from), does, str(to), drops});
    };
    using Does = Way::Does;
    QVERIFY(has(spot("MapEditTreeBox", "maps"), "doubleClick", "MainWindow", Does::kOpens, "MapProperties",
                false));
    QVERIFY(
        has(spot("MapEditTreeBox", "maps"), "rightClick", "MainWindow", Does::kPopsUp, "MapPopup", false));
    QVERIFY(has(spot("Menu", "MapPopup/newMap"), "click", "MapPopup", Does::kOpens, "MapProperties", false));
    QVERIFY(has(spot("Menu", "@dismiss"), "click", "MapPopup", Does::kCloses, "MapPopup", false));
    QVERIFY(
        has(spot("MapProperties", "cancel"), "click", "MapProperties", Does::kCloses, "MapProperties", true));
    QVERIFY(
        has(spot("MapProperties", "ok"), "click", "MapProperties", Does::kCloses, "MapProperties", false));
    QVERIFY(has(spot("MapProperties", "@dismiss"), "click", "MapProperties", Does::kCloses, "MapProperties",
                true));
    QVERIFY(has(spot("NewProject", "ok"), "click", "NewProject", Does::kOpens, "Copying", false));
    for (const Way &way : ways) {
        QVERIFY(way.does != Does::kCloses || way.windowKey != str("MainWindow"));
        // It goes by itself, and in no other way.
        QVERIFY(way.does != Does::kCloses || way.windowKey != str("Copying") || way.icon == str("wait"));
    }
}

void tst_GuidedWindows::escapeDropsWhatAnotherControlGoesOnWith()
{
    const Editor editor;
    const Ways ways = editor->ways();
    const auto drops = [&ways](const char *control) {
        const auto found = std::find_if(ways.cbegin(), ways.cend(), [control](const Way &way) {
            return way.by == spot("EventCommandSelect", control) && way.does == Way::Does::kCloses;
        });
        return found == ways.cend() ? -1 : int(found->drops);
    };
    // A command is taken into its form, or is inserted at once.
    QCOMPARE(drops("commands"), 0);
    QCOMPARE(drops("ok"), 0);
    QCOMPARE(drops("cancel"), 1);
    QCOMPARE(drops("@dismiss"), 1);
}

void tst_GuidedWindows::knowsWhatAControlBringsAbout_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("part");
    QTest::addColumn<QString>("condition");
    QTest::addColumn<bool>("does");
    const auto row = [](const char *window, const char *control, int part, const char *condition, bool does) {
        QTest::addRow("%s %d %s", control, part, condition)
            << str(window) << str(control) << part << str(condition) << does;
    };
    row("MainWindow", "fileNew", -1, "windowState,NewProject,open", true);
    row("MainWindow", "fileNew", -1, "windowState,NewProject,close", false);
    row("MainWindow", "fileNew", -1, "action,fileNew,open", true);
    row("MainWindow", "fileNew", -1, "action,fileOpen,open", false);
    row("MapProperties", "name", -1, "windowState,MapProperties,close", false);
    row("MapProperties", "name", -1, "textLength,name,3", true);
    row("MapProperties", "ok", -1, "windowState,MapProperties,close", true);
    row("MapLoader", "sampleMaps", 2, "windowState,MapLoader,close", true);
    row("MapEditTreeBox", "maps", 2, "popup,MapPopup", true);
    row("MapEditTreeBox", "maps", 2, "popup,TilePopup", false);
    row("MainWindow", "tiles", 1, "list,1", true);
    row("MainWindow", "tiles", 1, "list,2", false);
    row("MainWindow", "palette", 1, "tabView,tabview,1", true);
    row("MainWindow", "palette", 1, "list,1", false);
    row("MainWindowClient_mapEditorView", "map", 5, "mouseEvent,Map,click", true);
    row("MainWindowClient_mapEditorView", "map", 5, "popup,MapViewPopup", true);
    row("Copying", "text", -1, "windowState,Copying,close", false);
    row("MainWindow", "fileNew", -1, "click,", false);
}

void tst_GuidedWindows::knowsWhatAControlBringsAbout()
{
    QFETCH(QString, window);
    QFETCH(QString, control);
    QFETCH(int, part);
    QFETCH(QString, condition);
    const Editor editor;
    QTEST(editor->canCause({window, control, part}, *Condition::parse(condition)), "does");
}

void tst_GuidedWindows::offersTheEntriesThatABoxHas()
{
    Editor editor;
    editor.openProject();
    const auto offers = [&editor](const char *condition) {
        return editor->offers(spot("MapProperties", "music"), *Condition::parse(str(condition)));
    };
    const auto *const box = editor->window(str("MapProperties"))->findChild<QComboBox *>(str("music"));
    QVERIFY(box->count() > 1);
    QVERIFY(offers("comboBox,music,1"));
    QVERIFY(!offers("comboBox,music,99"));
    QVERIFY(offers("click,"));
}

void tst_GuidedWindows::knowsWhatAControlMeansAtPresent()
{
    Editor editor;
    editor.openProject();
    const ControlSpot tile = spot("MainWindow", "tiles", 4);
    const QString ground = editor->meaningOf(tile);
    const QVector<ControlSpot> chosen = editor->chosen();
    QVERIFY(chosen.contains(spot("MainWindow", "palette", 0)));
    QVERIFY(use(editor, spot("MainWindow", "palette", 1)));
    QVERIFY(editor->meaningOf(tile) != ground);
    QVERIFY(!editor->chosen().contains(spot("MainWindow", "palette", 0)));
    QVERIFY(use(editor, spot("MainWindow", "palette", 0)));
    QCOMPARE(editor->meaningOf(tile), ground);

    const QString drawing = editor->meaningOf(cell(1, 1));
    for (const char *other : {"drawFloodFill", "layer2", "modeEvent"}) {
        const QVector<ControlSpot> before = editor->chosen();
        QVERIFY(use(editor, spot("MainWindow", other)));
        QVERIFY2(editor->meaningOf(cell(1, 1)) != drawing, other);
        QVERIFY2(editor->chosen().contains(spot("MainWindow", other)), other);
        QVERIFY(editor->chosen() != before);
    }
    QCOMPARE(editor->meaningOf(spot("MapProperties", "name")), QString());
    QCOMPARE(editor->meaningOf(spot("MainWindow", "fileNew")), str("shown"));
    QCOMPARE(editor->meaningOf(spot("MainWindow", "editUndo")), str("grey"));
}

void tst_GuidedWindows::saysWhatLeadsBack()
{
    Editor editor;
    editor.openProject();
    Step step;
    step.windowKey = str("MapProperties");
    const Way again{spot("MapEditTreeBox", "maps", 3),
                    str("doubleClick"),
                    str("MainWindow"),
                    Way::Does::kOpens,
                    str("MapProperties"),
                    false};
    const QString oasis = editor.rows("maps").at(3).text;
    QCOMPARE(editor->hintBack(again, step),
             str("This lesson goes on in “Map properties”.\nDouble-click “%1” again.").arg(oasis));
    const Way tab{
        spot("MainWindow", "palette", 1), str("click"), str("MainWindow"), Way::Does::kShows, {}, false};
    QCOMPARE(editor->hintBack(tab, step), str("Click “Nature” again."));
    step.windowKey = str("MapEditTreeBox");
    const Way out{spot("MapProperties", "cancel"),
                  str("click"),
                  str("MapProperties"),
                  Way::Does::kCloses,
                  str("MapProperties"),
                  true};
    QCOMPARE(editor->hintBack(out, step), str("Click “Cancel”."));
    const Way menu{spot("Menu", "@dismiss"), str("click"),    str("MapPopup"),
                   Way::Does::kCloses,       str("MapPopup"), false};
    QCOMPARE(editor->hintBack(menu, step), str("Press Esc: the menu closes."));
    // One that copies files goes by itself.
    const Ways ways = editor->ways();
    const auto copying = std::find_if(ways.cbegin(), ways.cend(), [](const Way &way) {
        return way.windowKey == str("Copying") && way.does == Way::Does::kCloses;
    });
    QVERIFY(copying != ways.cend());
    QCOMPARE(copying->icon, str("wait"));
    QCOMPARE(editor->hintBack(*copying, step), str("Wait a moment: this window closes by itself."));
    QVERIFY(!editor->hintToPutBack(step).isEmpty());
}

void tst_GuidedWindows::aSecondPressBehindNextIsSwallowed()
{
    Editor editor;
    editor.openProject();
    editor->takeFocusBack();
    editor.click("MainWindow", "fileNew");
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QTest::mouseClick(editor.map(), Qt::RightButton);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    // What the editor does in a person's place is not.
    QVERIFY(use(editor, spot("MainWindow", "fileNew")));
    QCOMPARE(editor->openWindows().size(), 2);
    editor->close(str("NewProject"));
    QTRY_VERIFY([&editor] {
        editor.click("MainWindow", "fileNew");
        return editor->openWindows().size() == 2;
    }());
}

void tst_GuidedWindows::theWindowOnTopGetsTheFocusBack()
{
    Editor editor;
    editor.openProject();
    editor->open(str("MapProperties"));
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &other);
    editor->takeFocusBack();
    QTRY_COMPARE(QApplication::activeWindow(), editor->window(str("MapProperties")));
}

void tst_GuidedWindows::tellsTheTipsOfButtons()
{
    Editor editor;
    editor.openProject();
    QSignalSpy hovered(editor.operator->(), &HostEditor::hovered);
    QSignalSpy unhovered(editor.operator->(), &HostEditor::unhovered);
    auto *button = editor.find<QWidget>("MainWindow", "fileSave");
    QVERIFY(!button->toolTip().isEmpty());
    QTRY_COMPARE(QApplication::activeWindow(), button->window());
    const auto send = [button](QEvent::Type type) {
        QEvent event(type);
        return QCoreApplication::sendEvent(button, &event);
    };
    send(QEvent::Enter);
    QCOMPARE(hovered.size(), 0);
    editor->setTipsShownElsewhere(true);
    send(QEvent::Enter);
    QCOMPARE(hovered.size(), 1);
    QCOMPARE(hovered.constFirst().at(0).toString(), button->toolTip());
    QVERIFY(hovered.constFirst().at(1).toPoint().y() > button->mapToGlobal(QPoint(0, button->height())).y());
    send(QEvent::Leave);
    QCOMPARE(unhovered.size(), 1);
    send(QEvent::Leave);
    QCOMPARE(unhovered.size(), 1);
    // Beside an open dialog the tip would stay for as long as that does.
    editor->open(str("NewProject"));
    QTRY_COMPARE(QApplication::activeWindow(), editor->window(str("NewProject")));
    hovered.clear(); // with Qt 6 the opening itself may bring the pointer to a button
    send(QEvent::Enter);
    QVERIFY(hovered.isEmpty());
}

void tst_GuidedWindows::knowsWhatALessonNames_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("unknown");
    const auto row = [](const char *window, const char *condition, const char *unknown = "") {
        QTest::addRow("%s in %s", condition, window) << str(window) << str(condition) << str(unknown);
    };
    row("MainWindow", "click,");
    row("", "click,");
    row("ApplicationWindow", "list,2");
    row("MainWindow", "windowState,NewProject,open");
    row("MainWindow", "action,fileSave,close");
    row("MapEditTreeBox", "popup,MapPopup");
    row("MainWindowClient_mapEditorView", "mouseEvent,Map,click");
    row("Location", "mouseEvent,Location,click");
    row("EventCommand", "comboBox,direction,1");
    row("EventCommand", "spinBox,=,35 %");
    row("DatabaseMain", "tabView,tabview,12");
    row("Dungeon", "click,", "Dungeon");
    row("MainWindow", "windowState,Dungeon,open", "windowState,Dungeon,open");
    row("MainWindow", "action,fileBurn,", "action,fileBurn,");
    row("MapEditTreeBox", "popup,Lunch", "popup,Lunch");
    row("MainWindow", "mouseEvent,Moon,click", "mouseEvent,Moon,click");
    row("MainWindow", "menuEvent,Moon,click", "menuEvent,Moon,click");
    row("NewProject", "list,2", "list,2");
    row("MainWindow", "tabView,tabview,9", "tabView,tabview,9");
    row("EventCommand", "checked,sugar,1", "checked,sugar,1");
    row("Copying", "textLength,name,3", "textLength,name,3");
}

void tst_GuidedWindows::knowsWhatALessonNames()
{
    QFETCH(QString, window);
    QFETCH(QString, condition);
    QFETCH(QString, unknown);
    const Editor editor;
    Step step;
    step.id = 7;
    step.windowKey = window;
    step.conditionText = condition;
    const std::optional<Condition> read = Condition::parse(condition);
    QVERIFY(read);
    step.condition = *read;
    const std::optional<UnknownWord> found = editor->unknownWord(step);
    QCOMPARE(found ? found->word : QString(), unknown);
    QVERIFY(!found || (found->stepId == 7 && !found->problem.isEmpty()));
}

QTEST_MAIN(tst_GuidedWindows)
#include "tst_GuidedWindows.moc"
