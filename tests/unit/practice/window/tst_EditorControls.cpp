#include "EditorFixture.h"

#include <QLineEdit>
#include <QSpinBox>
#include <QTabBar>

/// What the controls in the windows do with the project, and what they tell.
class tst_EditorControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void actionsAreTold_data();
    void actionsAreTold();
    void toolButtonsNeedAProject();
    void rowsAreToldEvenWhenSelectedAlready();
    void rowsAreToldFromTheKeyboard();
    void rightClickSelectsWithoutTellingARow();
    void aRowThatIsTakenWithoutAClickIsToldAsAUse();
    void aMenuThatIsSeenBySomebodyElseIsTakenAwayAgain();
    void tabsAreToldEvenWhenCurrentAlready();
    void mapTellsPressThenClick();
    void mapPaintsWithEachTool_data();
    void mapPaintsWithEachTool();
    void eventModeDoesNotPaint();
    void contextMenuOfTheMap();
    void propertiesAreKeptWithOkOnly();
    void pictureIsChosenInItsWindow();
    void doubleClicksOpenAndAccept();
    void theListOfMapsLoadsASampleMap();
    void returnKeyAcceptsAndEscapeCancels();
    void valuesAreTold();
};

void tst_EditorControls::actionsAreTold_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("state");
    for (const char *name : {"editUndo", "editRedo", "modeMap", "modeEvent", "viewZoomIn", "viewZoomOut",
                             "viewZoomActual", "viewGrid", "drawPencil", "drawRectangle", "drawEllipse",
                             "drawFloodFill", "drawEraser", "layer1", "layer2", "layer3"}) {
        QTest::newRow(name) << QByteArray(name) << QString();
    }
    QTest::newRow("fileSave") << QByteArray("fileSave") << str("close");
}

void tst_EditorControls::actionsAreTold()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, state);
    Editor editor;
    editor.openProject();
    // Two steps that can be taken back, and two that can be done again.
    for (int column = 0; column < 4; ++column) {
        editor.run("layer.3");
        QTest::mouseClick(editor.map(), Qt::LeftButton, {}, QPoint(32 * column + 16, 16));
    }
    editor.run("edit.undo");
    editor.run("edit.undo");
    editor.takeTold();
    const QStringList told{str("action,%1,%2 in MainWindow").arg(QString::fromLatin1(name), state)};
    editor.click("MainWindow", name.constData());
    QCOMPARE(editor.takeTold(), told);
    editor.click("MainWindow", name.constData());
    QCOMPARE(editor.takeTold(), told);
}

void tst_EditorControls::toolButtonsNeedAProject()
{
    Editor editor;
    editor->open(str("MainWindow"));
    editor.takeTold();
    editor.click("MainWindow", "drawEraser");
    QCOMPARE(editor.takeTold(), QStringList());
    editor.run("newProject.create");
    editor.click("MainWindow", "drawEraser");
    QVERIFY(editor.find<QAbstractButton>("MainWindow", "drawEraser")->isChecked());
    QVERIFY(!editor.find<QAbstractButton>("MainWindow", "drawPencil")->isChecked());
    editor.click("MainWindow", "drawEraser");
    QVERIFY(editor.find<QAbstractButton>("MainWindow", "drawEraser")->isChecked());
}

void tst_EditorControls::rowsAreToldEvenWhenSelectedAlready()
{
    Editor editor;
    editor.openProject();
    const QStringList told{str("list,2, in MapEditTreeBox")};
    editor.clickRow("MapEditTreeBox", "maps", 2);
    QCOMPARE(editor.takeTold(), told);
    QCOMPARE(editor.shownMap()->name, str("Harbor"));
    editor.clickRow("MapEditTreeBox", "maps", 2);
    QCOMPARE(editor.takeTold(), told);
    editor.clickRow("MainWindow", "tiles", 0);
    QCOMPARE(editor.takeTold(), QStringList{str("list,0, in MainWindow")});
}

void tst_EditorControls::rowsAreToldFromTheKeyboard()
{
    Editor editor;
    editor.openProject();
    auto *list = editor.find<RowList>("MapEditTreeBox", "maps");
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(editor.takeTold(), QStringList{str("list,1, in MapEditTreeBox")});
    QTest::keyClick(list, Qt::Key_Up);
    QTest::keyClick(list, Qt::Key_Up);
    QCOMPARE(editor.takeTold(), QStringList{str("list,0, in MapEditTreeBox")});
}

void tst_EditorControls::rightClickSelectsWithoutTellingARow()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 3, Qt::RightButton);
    QCOMPARE(editor.takeTold(), (QStringList{str("push Popup"), str("popup,MapPopup, in Menu")}));
    QCOMPARE(editor.shownMap()->name, str("Oasis"));
}

void tst_EditorControls::aRowThatIsTakenWithoutAClickIsToldAsAUse()
{
    Editor editor;
    editor.openProject();
    editor->open(str("MapLoader"));
    editor.takeTold();
    QVector<ControlSpot> used;
    QObject::connect(editor.operator->(), &EditorWindows::used, editor.operator->(),
                     [&used](const ControlSpot &spot) { used.append(spot); });
    const auto spot = [](int row) {
        return ControlSpot{str("MapLoader"), str("sampleMaps"), row};
    };
    editor.clickRow("MapLoader", "sampleMaps", 2, Qt::RightButton);
    QCOMPARE(used, QVector<ControlSpot>{spot(2)});
    editor.clickRow("MapLoader", "sampleMaps", 2, Qt::RightButton);
    QCOMPARE(used, QVector<ControlSpot>{spot(2)});

    auto *list = editor.find<RowList>("MapLoader", "sampleMaps");
    const auto middle = [list](int row) {
        return list->visualItemRect(list->item(row)).center();
    };
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, middle(0));
    QMouseEvent move(QEvent::MouseMove, middle(1), list->viewport()->mapToGlobal(middle(1)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &move);
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, middle(1));
    QCOMPARE(list->currentRow(), 1);
    QCOMPARE(used, (QVector<ControlSpot>{spot(2), spot(1)}));
    QCOMPARE(editor.takeTold(), QStringList());
}

void tst_EditorControls::aMenuThatIsSeenBySomebodyElseIsTakenAwayAgain()
{
    class Shows : public QObject
    {
    public:
        QVector<QEvent::Type> seen;

    protected:
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
                seen.append(event->type());
            }
            return QObject::eventFilter(watched, event);
        }
    };
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 3, Qt::RightButton);
    EditorWindow *const menu = editor->window(str("MapPopup"));
    QTest::keyClick(editor.frame(), Qt::Key_Escape);
    QVERIFY(!menu->isVisible());
    editor.takeTold();
    Shows shows;
    menu->installEventFilter(&shows);
    // The window system has it still.
    QMouseEvent press(QEvent::MouseButtonPress, QPoint(5, 5), menu->mapToGlobal(QPoint(5, 5)), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(menu, &press);
    QCOMPARE(shows.seen, (QVector<QEvent::Type>{QEvent::Show, QEvent::Hide}));
    QVERIFY(!menu->isVisible());
    QCOMPARE(editor.takeTold(), QStringList());
}

void tst_EditorControls::tabsAreToldEvenWhenCurrentAlready()
{
    Editor editor;
    editor.openProject();
    auto *tabs = editor.find<QTabBar>("MainWindow", "palette");
    for (int tab : {2, 2, 0}) {
        QTest::mouseClick(tabs, Qt::LeftButton, {}, QPoint(80 * tab + 40, 13));
        QCOMPARE(editor.takeTold(), QStringList{str("tabView,tabview,%1 in MainWindow").arg(tab)});
        QCOMPARE(tabs->currentIndex(), tab);
    }
    QTest::mouseClick(tabs, Qt::LeftButton, {}, QPoint(80, 13));
    editor.takeTold();
    tabs->setCurrentIndex(2);
    QCOMPARE(editor.takeTold(), QStringList{str("tabView,tabview,2 in MainWindow")});
    QCOMPARE(editor.find<RowList>("MainWindow", "tiles")->item(0)->text(), str("Wall"));
}

void tst_EditorControls::mapTellsPressThenClick()
{
    Editor editor;
    editor.openProject();
    const QString in = str(" in MainWindowClient_mapEditorView");
    QTest::mousePress(editor.map(), Qt::LeftButton, {}, QPoint(40, 40));
    QCOMPARE(editor.takeTold(), QStringList{str("pressed,0,0") + in});
    QTest::mouseRelease(editor.map(), Qt::LeftButton, {}, QPoint(40, 40));
    QCOMPARE(editor.takeTold(), QStringList{str("mouseEvent,Map,click") + in});
    QTest::mousePress(editor.map(), Qt::LeftButton, {}, QPoint(40, 40));
    QTest::mouseRelease(editor.map(), Qt::LeftButton, {}, QPoint(-5, 40));
    QCOMPARE(editor.takeTold(), QStringList{str("pressed,0,0") + in});
}

void tst_EditorControls::mapPaintsWithEachTool_data()
{
    QTest::addColumn<QByteArray>("tool");
    QTest::addColumn<QPoint>("painted");
    QTest::addColumn<int>("tile");
    QTest::newRow("pencil") << QByteArray("drawPencil") << QPoint(3, 3) << 4;
    QTest::newRow("rectangle") << QByteArray("drawRectangle") << QPoint(5, 1) << 4;
    QTest::newRow("ellipse") << QByteArray("drawEllipse") << QPoint(5, 3) << 4;
    QTest::newRow("fill") << QByteArray("drawFloodFill") << QPoint(1, 7) << 4;
    QTest::newRow("eraser") << QByteArray("drawEraser") << QPoint(3, 3) << int(GameMap::kEmpty);
}

void tst_EditorControls::mapPaintsWithEachTool()
{
    QFETCH(QByteArray, tool);
    QFETCH(QPoint, painted);
    QFETCH(int, tile);
    Editor editor;
    editor.openProject();
    const int before = editor.shownMap()->tile(0, painted);
    QVERIFY(before != tile);
    editor.clickRow("MainWindow", "tiles", 4);
    editor.click("MainWindow", tool.constData());
    const QImage pictureBefore = editor.map()->grab().toImage();
    // From cell (1, 1) to (5, 5).
    QTest::mousePress(editor.map(), Qt::LeftButton, {}, QPoint(48, 48));
    QMouseEvent move(QEvent::MouseMove, QPoint(176, 176), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(editor.map(), &move);
    QVERIFY(editor.map()->grab().toImage() != pictureBefore);
    QTest::mouseRelease(editor.map(), Qt::LeftButton, {}, QPoint(176, 176));
    QCOMPARE(editor.shownMap()->tile(0, painted), tile);
    QVERIFY(editor.frame()->isWindowModified());
    editor.click("MainWindow", "editUndo");
    QCOMPARE(editor.shownMap()->tile(0, painted), before);
    QCOMPARE(editor.map()->grab().toImage(), pictureBefore);
}

void tst_EditorControls::eventModeDoesNotPaint()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MainWindow", "tiles", 4);
    editor.click("MainWindow", "modeEvent");
    const QImage before = editor.map()->grab().toImage();
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, QPoint(112, 112));
    QVERIFY(editor.map()->grab().toImage() != before);
    QCOMPARE(editor.shownMap()->tile(0, {3, 3}), 0);
    QVERIFY(!editor->project()->isModified());
}

void tst_EditorControls::contextMenuOfTheMap()
{
    Editor editor;
    editor.openProject();
    const QPoint at(100, 120);
    QTest::mouseClick(editor.map(), Qt::RightButton, {}, at);
    QCOMPARE(editor.takeTold(), (QStringList{str("menuEvent,Map,click in MainWindowClient_mapEditorView"),
                                             str("push Popup"), str("popup,MapViewPopup, in Menu")}));
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("Popup")}));
    QCOMPARE(editor->origin(str("Menu")), editor.map()->mapToGlobal(at));
    QCOMPARE(editor->origin(str("Popup")), editor->origin(str("Menu")));
    QCOMPARE(editor->project()->isModified(), false);
}

void tst_EditorControls::propertiesAreKeptWithOkOnly()
{
    Editor editor;
    editor.openProject();
    for (const char *button : {"cancel", "ok"}) {
        editor.clickRow("MapEditTreeBox", "maps", 0, Qt::RightButton);
        editor.click("MapPopup", "mapProperties");
        editor.takeTold();
        auto *name = editor.find<QLineEdit>("MapProperties", "name");
        QCOMPARE(name->text(), str("Village"));
        name->selectAll();
        QTest::keyClicks(name, str("Town"));
        QCOMPARE(editor.takeTold().constLast(), str("textLength,name,4 in MapProperties"));
        editor.click("MapProperties", button);
        QCOMPARE(editor.takeTold(), closed("MapProperties"));
        QCOMPARE(editor.find<RowList>("MapEditTreeBox", "maps")->item(0)->text(),
                 str(qstrcmp(button, "ok") == 0 ? "Town" : "Village"));
    }
}

void tst_EditorControls::pictureIsChosenInItsWindow()
{
    Editor editor;
    editor.openProject();
    const QImage before = editor.map()->grab().toImage();
    editor->open(str("MapProperties"));
    editor.takeTold();
    editor.click("MapProperties", "tileSet");
    QCOMPARE(editor.takeTold(), opened("ImageSelector"));
    const QImage meadow = editor.find<QWidget>("ImageSelector", "preview")->grab().toImage();
    editor.clickRow("ImageSelector", "images", 2);
    QCOMPARE(editor.takeTold(), QStringList{str("list,2, in ImageSelector")});
    QVERIFY(editor.find<QWidget>("ImageSelector", "preview")->grab().toImage() != meadow);
    editor.click("ImageSelector", "ok");
    QCOMPARE(editor.takeTold(), closed("ImageSelector"));
    editor.click("MapProperties", "ok");
    QCOMPARE(editor.shownMap()->tileSet, 2);
    QVERIFY(editor.map()->grab().toImage() != before);
}

void tst_EditorControls::doubleClicksOpenAndAccept()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1);
    editor.takeTold();
    editor.doubleClickRow("MapEditTreeBox", "maps", 1);
    QVERIFY(editor->openWindows().contains(str("MapProperties")));
    QCOMPARE(editor.find<QLineEdit>("MapProperties", "name")->text(), str("Forest path"));
    editor->close(str("MapProperties"));

    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.click("MapPopup", "loadMap");
    const QImage firstMap = editor.find<QWidget>("MapLoader", "preview")->grab().toImage();
    editor.clickRow("MapLoader", "sampleMaps", 4);
    QVERIFY(editor.find<QWidget>("MapLoader", "preview")->grab().toImage() != firstMap);
    editor.doubleClickRow("MapLoader", "sampleMaps", 4);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QCOMPARE(editor.shownMap()->name, str("Oasis"));
    QCOMPARE(editor.find<RowList>("MapEditTreeBox", "maps")->count(), 5);
}

void tst_EditorControls::theListOfMapsLoadsASampleMap()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1);
    editor.click("MapEditTreeBox", "load");
    editor.clickRow("MapLoader", "sampleMaps", 4);
    editor.click("MapLoader", "ok");
    QCOMPARE(editor.shownMap()->name, str("Oasis"));
    QCOMPARE(editor.find<RowList>("MapEditTreeBox", "maps")->count(), 5);
}

void tst_EditorControls::returnKeyAcceptsAndEscapeCancels()
{
    Editor editor;
    editor.openProject();
    editor->open(str("MapLoader"));
    QTest::keyClick(editor->window(str("MapLoader")), Qt::Key_Escape);
    QCOMPARE(editor.rows("maps").size(), 4);
    editor->open(str("MapLoader"));
    QTest::keyClick(editor.find<RowList>("MapLoader", "sampleMaps"), Qt::Key_Return);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QCOMPARE(editor.rows("maps").size(), 5);
}

void tst_EditorControls::valuesAreTold()
{
    Editor editor;
    editor.openProject();
    editor->open(str("MapProperties"));
    editor.takeTold();
    auto *width = editor.find<QSpinBox>("MapProperties", "width");
    QCOMPARE(width->value(), 24);
    QTest::keyClick(width, Qt::Key_Up);
    QCOMPARE(editor.takeTold(), QStringList{str("spinBox,=,25 in MapProperties")});
    editor.click("MapProperties", "showName");
    editor.click("MapProperties", "showName");
    QCOMPARE(editor.takeTold(), (QStringList{str("checked,showName,0 in MapProperties"),
                                             str("checked,showName,1 in MapProperties")}));
    editor.click("MapProperties", "ok");
    QCOMPARE(editor.shownMap()->size, QSize(25, 16));
}

QTEST_MAIN(tst_EditorControls)
#include "tst_EditorControls.moc"
