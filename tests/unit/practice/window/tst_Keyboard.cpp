#include "EditorFixture.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QWindow>

/// The editor without a mouse.
class tst_Keyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aGameIsMadeByKeysAlone();
    void dialogsOpenWithTheirFirstField_data();
    void dialogsOpenWithTheirFirstField();
    void whatIsLookedForIsTypedAtOnce();
    void aListShowsThatItHasTheFocus();
    void tabGoesThroughTheControlsInOrder();
    void controlTabGoesThroughTheTabs();
    void whatComesInThePlaceOfTheFocusHasIt();
    void returnPressesTheButtonWithTheFocus();
    void theButtonOfTheReturnKeyIsMarked();
    void aWindowBelongsToTheOneThatOpenedIt();
    void whatGetsTheKeyboardBehindTheMainWindowKeepsIt();
    void theMenuKeyOpensTheMenuOfTheRow();
    void theMenuKeyOpensTheMenuOfTheCell();
    void aKeyOpensTheMenuBar();
    void popupKeysAreThePopups();
    void popupEntriesAreChosenByLetter_data();
    void popupEntriesAreChosenByLetter();
    void keysDrawOnTheMap();
    void theMapMarksItsCellForTheKeyboardOnly();
};

namespace {

QString focusName()
{
    QCoreApplication::processEvents();
    return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName() : QString();
}

/// Presses Tab until the control has the focus.
bool tabTo(const char *name)
{
    for (int press = 0; press < 40 && focusName() != str(name); ++press) {
        Editor::key(Qt::Key_Tab);
    }
    return focusName() == str(name);
}

/// Presses Tab until the map has the focus.
bool tabToMap(const Editor &editor)
{
    for (int press = 0; press < 12 && !editor.map()->hasFocus(); ++press) {
        Editor::key(Qt::Key_Tab);
    }
    return editor.map()->hasFocus();
}

} // namespace

void tst_Keyboard::aGameIsMadeByKeysAlone()
{
    Editor editor;
    editor->open(str("MainWindow"));
    Editor::key(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("NewProject")}));
    Editor::type("Meadow");
    Editor::key(Qt::Key_Return);
    QVERIFY(editor->openWindows().contains(str("Copying")));
    QTRY_COMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QCOMPARE(editor->project()->name(), str("Meadow"));

    QVERIFY(tabTo("maps"));
    Editor::key(Qt::Key_Down);
    Editor::key(Qt::Key_F10, Qt::ShiftModifier);
    Editor::key(Qt::Key_Down);
    Editor::key(Qt::Key_Return);
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("MapProperties")}));
    Editor::type("Grove");
    Editor::key(Qt::Key_Return);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QCOMPARE(editor.shownMap()->name, str("Grove"));

    QVERIFY(tabTo("tiles"));
    for (int row = 0; row < 4; ++row) {
        Editor::key(Qt::Key_Down);
    }
    QVERIFY(tabToMap(editor));
    Editor::key(Qt::Key_Right);
    const int before = editor.shownMap()->tile(0, {1, 0});
    Editor::key(Qt::Key_Space);
    QCOMPARE(editor.shownMap()->tile(0, {1, 0}), 4);
    QVERIFY(before != 4);
    Editor::key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(editor.shownMap()->tile(0, {1, 0}), before);
    QVERIFY(editor->project()->isModified());
    Editor::key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!editor->project()->isModified());
    QFile file(editor.folder() + str("/Meadow/data/MapInfos.json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\"Grove\""));
}

void tst_Keyboard::dialogsOpenWithTheirFirstField_data()
{
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("first");
    QTest::newRow("new project") << str("NewProject") << str("name");
    QTest::newRow("open a project") << str("FileDialog") << str("projects");
    QTest::newRow("map") << str("MapProperties") << str("name");
    QTest::newRow("picture") << str("ImageSelector") << str("images");
    QTest::newRow("sample map") << str("MapLoader") << str("sampleMaps");
}

void tst_Keyboard::dialogsOpenWithTheirFirstField()
{
    QFETCH(QString, window);
    QFETCH(QString, first);
    Editor editor;
    editor.openProject();
    for (int time = 0; time < 2; ++time) {
        editor->open(window);
        QCOMPARE(focusName(), first);
        QVERIFY(editor->window(window)->isAncestorOf(QApplication::focusWidget()));
        if (const auto *edit = qobject_cast<QLineEdit *>(QApplication::focusWidget())) {
            QVERIFY(!edit->text().isEmpty());
            QCOMPARE(edit->selectedText(), edit->text());
        }
        // The next time it is the first again.
        Editor::key(Qt::Key_Tab);
        Editor::key(Qt::Key_Escape);
        QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    }
}

void tst_Keyboard::whatIsLookedForIsTypedAtOnce()
{
    Editor editor;
    editor.openProject();
    editor->open(str("EventSearcher"));
    QCOMPARE(focusName(), str("name"));
}

void tst_Keyboard::aListShowsThatItHasTheFocus()
{
    Editor editor;
    editor.openProject();
    const auto *maps = editor.find<RowList>("MapEditTreeBox", "maps");
    const auto edge = [&editor, maps] {
        const QPoint above(maps->geometry().center().x(), maps->geometry().top() - 1);
        return editor->window(str("MapEditTreeBox"))->grab().toImage().pixelColor(above);
    };
    QVERIFY(tabTo("tiles"));
    QVERIFY(edge() != QApplication::palette().color(QPalette::Highlight));
    QVERIFY(tabTo("maps"));
    QCOMPARE(edge(), QApplication::palette().color(QPalette::Highlight));
}

void tst_Keyboard::tabGoesThroughTheControlsInOrder()
{
    Editor editor;
    editor.openProject();
    editor->open(str("MapProperties"));
    QStringList errors;
    const auto descriptions = DescriptionSet::read(str(":/descriptions"), nullptr, &errors);
    QStringList wanted;
    for (const ControlDescription &control : descriptions[str("MapProperties")].controls) {
        const auto *widget = editor.find<QWidget>("MapProperties", qPrintable(control.name));
        if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0) {
            wanted.append(control.name);
        }
    }
    QVERIFY(wanted.size() >= 8);
    QStringList names;
    while (names.size() < wanted.size()) {
        names.append(focusName());
        Editor::key(Qt::Key_Tab);
    }
    QCOMPARE(names, wanted);
    QCOMPARE(focusName(), wanted.constFirst());
}

void tst_Keyboard::controlTabGoesThroughTheTabs()
{
    Editor editor;
    editor.openProject();
    editor->open(str("DatabaseMain"));
    const auto *const tabs = editor.find<QTabBar>("DatabaseMain", "tabs");
    auto *const actors = editor.find<QWidget>("DatabaseMain", "actors");
    actors->setFocus();
    QTest::keyClick(actors, Qt::Key_Tab, Qt::ControlModifier);
    QCOMPARE(tabs->currentIndex(), 1);
    QTest::keyClick(editor.find<QWidget>("DatabaseMain", "classes"), Qt::Key_Backtab,
                    Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(tabs->currentIndex(), 0);
    QTest::keyClick(actors, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(tabs->currentIndex(), tabs->count() - 1);
}

void tst_Keyboard::whatComesInThePlaceOfTheFocusHasIt()
{
    Editor editor;
    editor.openProject();
    editor->open(str("DatabaseMain"));
    editor->window(str("DatabaseMain"))->window()->activateWindow();
    auto *const tabs = editor.find<QTabBar>("DatabaseMain", "tabs");
    auto *const actors = editor.find<QWidget>("DatabaseMain", "actors");
    actors->setFocus();
    QTRY_VERIFY(actors->hasFocus());
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
    QVERIFY(editor.find<QWidget>("DatabaseMain", "classes")->hasFocus());
    // Where something else has it, it stays there.
    auto *const apply = editor.find<QWidget>("DatabaseMain", "apply");
    apply->setFocus();
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(2).center());
    QVERIFY(apply->hasFocus());
}

void tst_Keyboard::returnPressesTheButtonWithTheFocus()
{
    Editor editor;
    editor.openProject();
    editor->open(str("MapProperties"));
    Editor::type("Grove");
    QVERIFY(tabTo("cancel"));
    Editor::key(Qt::Key_Return);
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QCOMPARE(editor.shownMap()->name, str("Village"));
}

void tst_Keyboard::theButtonOfTheReturnKeyIsMarked()
{
    Editor editor;
    editor.openProject();
    editor->open(str("MapProperties"));
    const auto *ok = editor.find<QPushButton>("MapProperties", "ok");
    QVERIFY(ok->isDefault());
    QVERIFY(tabTo("cancel"));
    QVERIFY(!ok->isDefault());
    QVERIFY(tabTo("name"));
    QVERIFY(ok->isDefault());
    QVERIFY(tabTo("ok"));
    QVERIFY(ok->isDefault());
    QVERIFY(tabTo("name"));
    QVERIFY(ok->isDefault());
}

void tst_Keyboard::whatGetsTheKeyboardBehindTheMainWindowKeepsIt()
{
    Editor editor;
    editor.openProject();
    editor->open(str("MapProperties"));
    QTRY_COMPARE(QApplication::activeWindow(), editor->window(str("MapProperties"))->window());
    // Such as a game that is begun from a dialog.
    QWidget game;
    game.show();
    editor->window(str("MainWindow"))->window()->windowHandle()->requestActivate();
    game.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &game);
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::activeWindow(), &game);
}

void tst_Keyboard::aWindowBelongsToTheOneThatOpenedIt()
{
    // So the keyboard comes back to that when it closes, whatever the window manager.
    Editor editor;
    editor.openProject();
    editor->open(str("DatabaseMain"));
    const auto handle = [&editor](const char *key) {
        return editor->window(str(key))->window()->windowHandle();
    };
    QCOMPARE(handle("DatabaseMain")->transientParent(), handle("MainWindow"));
    editor->open(str("ChangeMaximum"));
    QCOMPARE(handle("ChangeMaximum")->transientParent(), handle("DatabaseMain"));
    // Where it does not, such as with one that goes by the main window, it is brought back.
    editor->close(str("ChangeMaximum"));
    handle("MainWindow")->requestActivate();
    QTRY_COMPARE(QGuiApplication::focusWindow(), handle("DatabaseMain"));
    editor->close(str("DatabaseMain"));
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    editor->open(str("EventEditorMain"));
    editor->open(str("VariableSelector"));
    editor->open(str("ChangeMaximum"));
    QCOMPARE(handle("ChangeMaximum")->transientParent(), handle("VariableSelector"));
}

void tst_Keyboard::theMenuKeyOpensTheMenuOfTheRow()
{
    Editor editor;
    editor.openProject();
    auto *maps = editor.find<RowList>("MapEditTreeBox", "maps");
    // On this screen there is room for the menu below the last row then.
    editor.frame()->move(0, -200);
    maps->setFocus();
    Editor::key(Qt::Key_End);
    editor.takeTold();
    Editor::key(Qt::Key_Menu);
    QCOMPARE(editor.takeTold(), (QStringList{str("push Popup"), str("popup,MapPopup, in Menu")}));
    QCOMPARE(editor.shownMap()->name, str("Oasis"));
    const QRect row = maps->visualItemRect(maps->item(3));
    QCOMPARE(editor->origin(str("Menu")).value(), maps->viewport()->mapToGlobal(row.center()));
    Editor::key(Qt::Key_Menu);
    QCOMPARE(editor.takeTold(), QStringList{str("pop Popup")});
    // The window system tells of the key a second time.
    QContextMenuEvent again(QContextMenuEvent::Keyboard, row.center());
    QApplication::sendEvent(maps, &again);
    QCOMPARE(editor.takeTold(), QStringList());
}

void tst_Keyboard::theMenuKeyOpensTheMenuOfTheCell()
{
    Editor editor;
    editor.openProject();
    editor.map()->setFocus();
    editor.map()->setMarkedCell({3, 2});
    editor.takeTold();
    Editor::key(Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(editor.takeTold(), (QStringList{str("menuEvent,Map,click in MainWindowClient_mapEditorView"),
                                             str("push Popup"), str("popup,MapViewPopup, in Menu")}));
    QCOMPARE(editor->origin(str("Menu")).value(),
             editor.map()->mapToGlobal(QRect(3 * 32, 2 * 32, 32, 32).center()));
}

void tst_Keyboard::aKeyOpensTheMenuBar()
{
    Editor editor;
    editor.openProject();
    QVERIFY(QApplication::activePopupWidget() == nullptr);
    Editor::key(Qt::Key_F10);
    const auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY(menu != nullptr);
    QCOMPARE(menu->activeAction(), menu->actions().constFirst());
    editor.takeTold();
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    QCOMPARE(editor->openWindows().last(), str("NewProject"));
    // A dialog has none.
    Editor::key(Qt::Key_F10);
    QVERIFY(QApplication::activePopupWidget() == nullptr);
}

void tst_Keyboard::popupKeysAreThePopups()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    editor.takeTold();
    // Up from nowhere is the last entry, and beyond it the first.
    Editor::key(Qt::Key_Up);
    QVERIFY(editor.find<QPushButton>("MapPopup", "deleteMap")->isDefault());
    Editor::key(Qt::Key_Down);
    QVERIFY(editor.find<QPushButton>("MapPopup", "mapProperties")->isDefault());
    QVERIFY(!editor.find<QPushButton>("MapPopup", "deleteMap")->isDefault());
    // Neither lists nor shortcuts get a key meanwhile.
    Editor::key(Qt::Key_N, Qt::AltModifier | Qt::ControlModifier);
    QCOMPARE(editor.takeTold().constFirst(), str("pop Popup"));
    QVERIFY(editor->openWindows().contains(str("MapProperties")));
    Editor::key(Qt::Key_Escape);
    QCOMPARE(editor.shownMap()->name, str("Forest path"));

    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    QVERIFY(!editor.find<QPushButton>("MapPopup", "mapProperties")->isDefault());
    editor.takeTold();
    Editor::key(Qt::Key_S, Qt::ControlModifier);
    Editor::key(Qt::Key_Return);
    QCOMPARE(editor.takeTold(), QStringList());
    Editor::key(Qt::Key_Escape);
    QCOMPARE(editor.takeTold(), QStringList{str("pop Popup")});
}

void tst_Keyboard::popupEntriesAreChosenByLetter_data()
{
    QTest::addColumn<QByteArray>("locale");
    for (const char *locale : {"en_US", "ja_JP", "zh_CN"}) {
        QTest::newRow(locale) << QByteArray(locale);
    }
}

void tst_Keyboard::popupEntriesAreChosenByLetter()
{
    QFETCH(QByteArray, locale);
    Editor editor(locale.constData());
    editor.openProject();
    editor.clickRow("MapEditTreeBox", "maps", 1, Qt::RightButton);
    Editor::key(Qt::Key_L);
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("MapLoader")}));
}

void tst_Keyboard::keysDrawOnTheMap()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MainWindow", "tiles", 4);
    editor.click("MainWindow", "drawRectangle");
    editor.map()->setFocus();
    editor.map()->setMarkedCell({5, 5});
    editor.takeTold();
    QTest::keyPress(Editor::focusWindow(), Qt::Key_Space);
    Editor::key(Qt::Key_Right);
    Editor::key(Qt::Key_Down);
    QVERIFY(!editor->project()->isModified());
    QTest::keyRelease(Editor::focusWindow(), Qt::Key_Space);
    QCOMPARE(editor.takeTold(), (QStringList{str("pressed,0,0 in MainWindowClient_mapEditorView"),
                                             str("mouseEvent,Map,drag in MainWindowClient_mapEditorView")}));
    for (const QPoint &cell : {QPoint(5, 5), QPoint(6, 5), QPoint(5, 6), QPoint(6, 6)}) {
        QCOMPARE(editor.shownMap()->tile(0, cell), 4);
    }
    editor.map()->setMarkedCell({-3, 400});
    QCOMPARE(editor.map()->markedCell(), QPoint(0, 15));
}

void tst_Keyboard::theMapMarksItsCellForTheKeyboardOnly()
{
    Editor editor;
    editor.openProject();
    editor.find<RowList>("MainWindow", "tiles")->setFocus();
    const QImage plain = editor.map()->grab().toImage();
    QVERIFY(tabToMap(editor));
    QVERIFY(editor.map()->grab().toImage() != plain);
    Editor::key(Qt::Key_Tab);
    QCOMPARE(editor.map()->grab().toImage(), plain);
}

QTEST_MAIN(tst_Keyboard)
#include "tst_Keyboard.moc"
