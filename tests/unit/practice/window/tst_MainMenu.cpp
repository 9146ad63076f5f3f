#include "EditorFixture.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

/// The menu bar of the main window and its keys.
class tst_MainMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysDoWhatTheToolButtonsDo_data();
    void keysDoWhatTheToolButtonsDo();
    void entriesAreAsTheirButtons();
    void entriesDoWhatThoseOfContextMenusDo();
    void everyEntryHasAMnemonicOfItsOwn_data();
    void everyEntryHasAMnemonicOfItsOwn();
    void everyToolButtonHasAnEntry();
    void toolTipsTellTheKey();
    void keysGoToWhatHasTheFocus();
    void copyPasteAndDeleteAreGreyWhereTheyDoNothing();
    void textFieldsKeepTheirKeys();
    void quitAsksLikeTheCloseButton();
};

namespace {

QAction *entry(const Editor &editor, const QString &text)
{
    const auto actions = editor.frame()->findChild<QMenuBar *>()->findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->text() == text) {
            return action;
        }
    }
    qFatal("no entry %s", qPrintable(text));
}

/// Takes note of the keys that it gets.
class KeyTaker : public QObject
{
public:
    using QObject::QObject;
    QVector<int> keys;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent *>(event)->key();
            if (key != Qt::Key_Control) {
                keys.append(key);
            }
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void tst_MainMenu::keysDoWhatTheToolButtonsDo_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("shift");
    QTest::addColumn<QString>("told");
    QTest::newRow("new") << int(Qt::Key_N) << false << str("action,fileNew,open in MainWindow");
    QTest::newRow("open") << int(Qt::Key_O) << false << str("action,fileOpen,open in MainWindow");
    QTest::newRow("save") << int(Qt::Key_S) << false << str("action,fileSave,close in MainWindow");
    QTest::newRow("grid") << int(Qt::Key_G) << false << str("action,viewGrid, in MainWindow");
    QTest::newRow("undo") << int(Qt::Key_Z) << false << str("action,editUndo, in MainWindow");
    QTest::newRow("redo") << int(Qt::Key_Y) << false << str("action,editRedo, in MainWindow");
    QTest::newRow("redo, too") << int(Qt::Key_Z) << true << str("action,editRedo, in MainWindow");
}

void tst_MainMenu::keysDoWhatTheToolButtonsDo()
{
    QFETCH(int, key);
    QFETCH(bool, shift);
    QFETCH(QString, told);
    Editor editor;
    editor.openProject();
    // Something to undo, and something to do again.
    editor.clickRow("MainWindow", "tiles", 4);
    for (const int cell : {40, 80}) {
        QTest::mouseClick(editor.map(), Qt::LeftButton, {}, QPoint(cell, cell));
    }
    editor.click("MainWindow", "editUndo");
    editor.takeTold();
    Editor::key(key, shift ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ControlModifier);
    QVERIFY2(editor.told.contains(told), qPrintable(editor.told.join(QLatin1Char('\n'))));
}

void tst_MainMenu::entriesAreAsTheirButtons()
{
    const Editor editor;
    editor->open(str("MainWindow"));
    QVERIFY(entry(editor, str("&New project…"))->isEnabled());
    QVERIFY(!entry(editor, str("&Save"))->isEnabled());
    QVERIFY(!entry(editor, str("&Pencil"))->isEnabled());
    // There is no list of maps for one more.
    const auto *const load = editor->window(str("MapEditTreeBox"))->findChild<QAbstractButton *>(str("load"));
    QVERIFY(!load->isEnabled());
    const_cast<Editor &>(editor).run("newProject.create");
    QVERIFY(entry(editor, str("&Save"))->isEnabled());
    QVERIFY(entry(editor, str("&Pencil"))->isChecked());
    QAction *const fill = entry(editor, str("&Fill"));
    QVERIFY(!fill->isChecked());
    fill->trigger();
    QVERIFY(fill->isChecked());
    QVERIFY(editor.find<QAbstractButton>("MainWindow", "drawFloodFill")->isChecked());
    QVERIFY(!entry(editor, str("&Pencil"))->isChecked());
    fill->trigger();
    QVERIFY(fill->isChecked());
}

void tst_MainMenu::entriesDoWhatThoseOfContextMenusDo()
{
    Editor editor;
    editor.openProject();
    QAction *const inn = entry(editor, str("Quick event: &inn…"));
    QAction *const edit = entry(editor, str("&Edit event…"));
    QVERIFY(!inn->isEnabled());
    editor.click("MainWindow", "modeEvent");
    QVERIFY(inn->isEnabled());
    QVERIFY(!edit->isEnabled());
    inn->trigger();
    QCOMPARE(editor->openWindows().constLast(), str("QuickInn"));
    editor.click("QuickInn", "ok");
    QVERIFY(!inn->isEnabled());
    QVERIFY(edit->isEnabled());
    edit->trigger();
    QCOMPARE(editor->openWindows().constLast(), str("EventEditorMain"));
}

void tst_MainMenu::everyEntryHasAMnemonicOfItsOwn_data()
{
    QTest::addColumn<QByteArray>("locale");
    for (const char *locale : {"en_US", "ja_JP", "zh_CN"}) {
        QTest::newRow(locale) << QByteArray(locale);
    }
}

void tst_MainMenu::everyEntryHasAMnemonicOfItsOwn()
{
    QFETCH(QByteArray, locale);
    const Editor editor(locale.constData());
    const auto checkLetters = [](const QList<QAction *> &actions) {
        QString letters;
        for (const QAction *action : actions) {
            const int mark = action->text().indexOf(QLatin1Char('&'));
            if (action->isSeparator()) {
                continue;
            }
            QVERIFY2(mark >= 0, qPrintable(action->text()));
            const QChar letter = action->text().at(mark + 1).toUpper();
            QVERIFY2(!letters.contains(letter), qPrintable(action->text()));
            letters.append(letter);
        }
        QVERIFY(!letters.isEmpty());
    };
    const auto *bar = editor.frame()->findChild<QMenuBar *>();
    checkLetters(bar->actions());
    const QList<QAction *> menus = bar->actions();
    for (const QAction *menu : menus) {
        checkLetters(menu->menu()->actions());
    }
}

void tst_MainMenu::everyToolButtonHasAnEntry()
{
    const Editor editor;
    const auto buttons = editor->window(str("MainWindow"))
                             ->findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(buttons.size() > 15);
    for (const QAbstractButton *button : buttons) {
        QVERIFY2(!button->toolTip().isEmpty(), qPrintable(button->objectName()));
    }
}

void tst_MainMenu::toolTipsTellTheKey()
{
    const Editor editor("ja_JP");
    const auto tip = [&editor](const char *name) {
        return editor.find<QAbstractButton>("MainWindow", name)->toolTip();
    };
    QCOMPARE(tip("fileNew"), str("新しいプロジェクト (Ctrl+N)"));
    QCOMPARE(tip("drawEraser"), str("消しゴム"));
    QCOMPARE(tip("layer2"), str("レイヤー2"));
}

void tst_MainMenu::keysGoToWhatHasTheFocus()
{
    Editor editor;
    editor.openProject();
    auto *maps = editor.find<RowList>("MapEditTreeBox", "maps");
    maps->setFocus();
    KeyTaker taker;
    maps->installEventFilter(&taker);
    Editor::key(Qt::Key_C, Qt::ControlModifier);
    Editor::key(Qt::Key_V, Qt::ControlModifier);
    Editor::key(Qt::Key_Delete);
    QCOMPARE(taker.keys, QVector<int>({Qt::Key_C, Qt::Key_V, Qt::Key_Delete}));
}

void tst_MainMenu::copyPasteAndDeleteAreGreyWhereTheyDoNothing()
{
    Editor editor;
    QMenu *const menu = editor.frame()->findChild<QMenuBar *>()->actions().at(1)->menu();
    // Which of copy, paste and delete can be chosen in the open menu.
    const auto shown = [&editor, menu] {
        Q_EMIT menu->aboutToShow();
        QString able;
        for (const char *text : {"&Copy", "&Paste", "&Delete"}) {
            able += QLatin1Char(entry(editor, str(text))->isEnabled() ? text[1] : '-');
        }
        Q_EMIT menu->aboutToHide();
        return able;
    };
    QCOMPARE(shown(), str("---"));
    editor.openProject();
    editor.map()->setFocus();
    QCOMPARE(shown(), str("---"));
    editor.click("MainWindow", "modeEvent");
    editor.map()->setFocus();
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, QPoint(40, 40));
    QCOMPARE(shown(), str("---"));
    entry(editor, str("Quick event: &inn…"))->trigger();
    editor.click("QuickInn", "ok");
    editor.map()->setFocus();
    QCOMPARE(shown(), str("C-D"));
    Editor::key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(shown(), str("C-D")); // there is an event where it would go
    Editor::key(Qt::Key_Delete);
    QCOMPARE(shown(), str("-P-"));
    // The menu bar has the focus when its menus are walked through by keys.
    Editor::key(Qt::Key_F, Qt::AltModifier);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Right);
    QCOMPARE(QApplication::activePopupWidget(), menu);
    QVERIFY(entry(editor, str("&Paste"))->isEnabled());
    QVERIFY(!entry(editor, str("&Copy"))->isEnabled());
    QTest::keyClick(menu, Qt::Key_P);
    QCOMPARE(shown(), str("C-D"));
    // The keys are passed on while the menu is closed.
    QVERIFY(entry(editor, str("&Copy"))->isEnabled());
    // A copied event has no place among the tiles.
    editor.find<RowList>("MainWindow", "tiles")->setFocus();
    QCOMPARE(shown(), str("---"));
}

void tst_MainMenu::textFieldsKeepTheirKeys()
{
    Editor editor;
    editor.openProject();
    editor.clickRow("MainWindow", "tiles", 4);
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, QPoint(40, 40));
    QVERIFY(editor->project()->isModified());
    editor->open(str("MapProperties"));
    Editor::type("Meadow");
    Editor::key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(editor->project()->isModified());
    editor->close(str("MapProperties"));
    Editor::key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(!editor->project()->isModified());
}

void tst_MainMenu::quitAsksLikeTheCloseButton()
{
    Editor editor;
    editor.openProject();
    entry(editor, str("&Quit"))->trigger();
    QVERIFY(editor.told.contains(str("main window closed")));
}

QTEST_MAIN(tst_MainMenu)
#include "tst_MainMenu.moc"
