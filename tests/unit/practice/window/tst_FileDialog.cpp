#include "EditorFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

/// The window that opens a project, which is nothing but a description.
class tst_FileDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensFromTheToolBarAndIsTold();
    void withoutAProjectThereIsNothingToOpen();
    void withoutAProjectItSaysWhatToDo();
    void opensTheChosenProject_data();
    void opensTheChosenProject();
    void cancelLeavesTheProjectOpen();
    void whatWasDrawnAndSavedIsThereAgain();
    void projectsOfAnotherPlaceAreFound();
};

void tst_FileDialog::opensFromTheToolBarAndIsTold()
{
    Editor editor;
    editor->open(str("MainWindow"));
    editor.takeTold();
    editor.click("MainWindow", "fileOpen");
    QCOMPARE(editor.takeTold(),
             opened("FileDialog") + QStringList{str("action,fileOpen,open in MainWindow")});
    editor.click("FileDialog", "cancel");
    QCOMPARE(editor.takeTold(), closed("FileDialog"));
    QVERIFY(!editor->project()->isOpen());
}

void tst_FileDialog::withoutAProjectThereIsNothingToOpen()
{
    Editor editor;
    editor->open(str("MainWindow"));
    editor.click("MainWindow", "fileOpen");
    QCOMPARE(editor.find<RowList>("FileDialog", "projects")->count(), 0);
    QVERIFY(!editor.find<QPushButton>("FileDialog", "ok")->isEnabled());
    QTest::keyClick(editor.find<QLineEdit>("FileDialog", "location"), Qt::Key_Return);
    QVERIFY(editor->openWindows().contains(str("FileDialog")));
}

void tst_FileDialog::withoutAProjectItSaysWhatToDo()
{
    Editor first;
    first.openProject();
    Editor editor;
    editor->open(str("MainWindow"));
    editor.click("MainWindow", "fileOpen");
    auto *list = editor.find<RowList>("FileDialog", "projects");
    QVector<QLabel *> words;
    for (const char *name : {"noProjects", "noProjectsInLesson", "noProjectsAnswer", "noProjectsOtherwise"}) {
        words.append(editor.find<QLabel>("FileDialog", name));
    }
    const auto areWordsShown = [&words](bool shown) {
        return std::all_of(words.cbegin(), words.cend(),
                           [shown](const QLabel *label) { return label->isVisible() == shown; });
    };
    QVERIFY(areWordsShown(true));
    QVERIFY(!list->isVisible());
    // The words are those of the buttons that are meant.
    QVERIFY(words.constLast()->text().contains(editor.find<QPushButton>("FileDialog", "cancel")->text()));
    QVERIFY(
        words.constLast()->text().contains(editor.find<QAbstractButton>("MainWindow", "fileNew")->text()));

    // Another place that has one.
    auto *location = editor.find<QLineEdit>("FileDialog", "location");
    location->selectAll();
    QTest::keyClicks(location, first.folder());
    QVERIFY(areWordsShown(false));
    QVERIFY(list->isVisible());
    QCOMPARE(list->count(), 1);
    QVERIFY(editor.find<QPushButton>("FileDialog", "ok")->isEnabled());
}

void tst_FileDialog::opensTheChosenProject_data()
{
    QTest::addColumn<bool>("byDoubleClick");
    QTest::newRow("Open") << false;
    QTest::newRow("double click") << true;
}

void tst_FileDialog::opensTheChosenProject()
{
    QFETCH(bool, byDoubleClick);
    Editor editor;
    editor.openProject();
    editor.openProject();
    QCOMPARE(editor->project()->name(), str("My first game (2)"));
    editor.click("MainWindow", "fileOpen");
    auto *list = editor.find<RowList>("FileDialog", "projects");
    QCOMPARE(list->count(), 2);
    editor.clickRow("FileDialog", "projects", 0);
    if (byDoubleClick) {
        editor.doubleClickRow("FileDialog", "projects", 0);
    } else {
        editor.click("FileDialog", "ok");
    }
    QCOMPARE(editor->project()->name(), str("My first game"));
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    QCOMPARE(editor.frame()->windowTitle(), str("My first game[*] – Map Maker"));
}

void tst_FileDialog::cancelLeavesTheProjectOpen()
{
    Editor editor;
    editor.openProject();
    editor.openProject();
    editor.click("MainWindow", "fileOpen");
    editor.clickRow("FileDialog", "projects", 0);
    editor.click("FileDialog", "cancel");
    QCOMPARE(editor->project()->name(), str("My first game (2)"));
}

void tst_FileDialog::whatWasDrawnAndSavedIsThereAgain()
{
    Editor first;
    first.openProject();
    first.clickRow("MapEditTreeBox", "maps", 3);
    first.clickRow("MainWindow", "tiles", 4);
    QTest::mouseClick(first.map(), Qt::LeftButton, {}, QPoint(48, 48));
    QVERIFY(first.frame()->isWindowModified());
    first.click("MainWindow", "fileSave");
    QVERIFY(!first.frame()->isWindowModified());
    const QImage drawn = first.map()->grab().toImage();

    Editor second;
    second->setProjectsFolder(first.folder());
    second->open(str("MainWindow"));
    second.click("MainWindow", "fileOpen");
    second.click("FileDialog", "ok");
    second.clickRow("MapEditTreeBox", "maps", 3);
    QCOMPARE(second.shownMap()->tile(0, {1, 1}), 4);
    QCOMPARE(second.map()->grab().toImage(), drawn);
    second.click("MainWindow", "editUndo");
    QCOMPARE(second.shownMap()->tile(0, {1, 1}), 4);
}

void tst_FileDialog::projectsOfAnotherPlaceAreFound()
{
    Editor first;
    first.openProject();
    Editor second;
    second->open(str("MainWindow"));
    second.click("MainWindow", "fileOpen");
    auto *list = second.find<RowList>("FileDialog", "projects");
    QCOMPARE(list->count(), 0);
    auto *location = second.find<QLineEdit>("FileDialog", "location");
    QCOMPARE(location->text(), second.folder());
    location->selectAll();
    QTest::keyClicks(location, first.folder());
    QCOMPARE(list->count(), 1);
    QVERIFY(second.find<QPushButton>("FileDialog", "ok")->isEnabled());
    second.click("FileDialog", "ok");
    QCOMPARE(second->projectFolder(), first->projectFolder());
}

QTEST_MAIN(tst_FileDialog)
#include "tst_FileDialog.moc"
