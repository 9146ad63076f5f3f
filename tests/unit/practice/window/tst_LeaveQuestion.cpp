#include "EditorFixture.h"

#include <QMessageBox>
#include <QPushButton>

/// What is not saved is not lost by accident.
class tst_LeaveQuestion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsAskedWithoutChanges();
    void cancelKeepsEverything_data();
    void cancelKeepsEverything();
    void leavingDropsTheChanges();
    void savingComesFirst();
    void whatCannotBeSavedIsNotLeft();
    void anotherProjectIsAskedFor();
    void nobodyIsAskedWhereNobodyIs();
    void aWindowThatClosesTakesTheQuestionBack();
};

namespace {

QMessageBox *question(const Editor &editor)
{
    auto *box = editor.frame()->findChild<QMessageBox *>(str("leaveMessageBox"));
    return box != nullptr && box->isVisible() ? box : nullptr;
}

bool answer(const Editor &editor, const char *button)
{
    QMessageBox *const box = question(editor);
    if (box == nullptr) {
        return false;
    }
    box->findChild<QPushButton *>(str(button))->click();
    return question(editor) == nullptr;
}

void change(Editor &editor)
{
    editor.clickRow("MainWindow", "tiles", 4);
    QTest::mouseClick(editor.map(), Qt::LeftButton, {}, QPoint(48, 48));
}

} // namespace

void tst_LeaveQuestion::nothingIsAskedWithoutChanges()
{
    Editor editor;
    editor.openProject();
    editor.click("MainWindow", "fileNew");
    editor.click("NewProject", "ok");
    QVERIFY(question(editor) == nullptr);
    QVERIFY(editor->openWindows().contains(str("Copying")));
}

void tst_LeaveQuestion::cancelKeepsEverything_data()
{
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("button") << false;
    QTest::newRow("escape key") << true;
}

void tst_LeaveQuestion::cancelKeepsEverything()
{
    QFETCH(bool, byEscape);
    Editor editor;
    editor.openProject();
    change(editor);
    editor.click("MainWindow", "fileNew");
    editor.takeTold();
    editor.click("NewProject", "ok");
    QVERIFY(question(editor) != nullptr);
    QVERIFY2(question(editor)->text().contains(str("My first game")), qPrintable(question(editor)->text()));
    if (byEscape) {
        QTest::keyClick(question(editor), Qt::Key_Escape);
    } else {
        QVERIFY(answer(editor, "cancel"));
    }
    QVERIFY(question(editor) == nullptr);
    QCOMPARE(editor.takeTold(), QStringList());
    QCOMPARE(editor->openWindows(), (QStringList{str("MainWindow"), str("NewProject")}));
    QCOMPARE(editor->project()->name(), str("My first game"));
    QVERIFY(editor->project()->isModified());

    editor->close(str("NewProject"));
    editor.takeTold();
    editor.frame()->close();
    QVERIFY(answer(editor, "cancel"));
    QCOMPARE(editor.takeTold(), QStringList());
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
}

void tst_LeaveQuestion::leavingDropsTheChanges()
{
    Editor editor;
    editor.openProject();
    change(editor);
    editor.click("MainWindow", "fileNew");
    editor.takeTold();
    editor.click("NewProject", "ok");
    QVERIFY(answer(editor, "leave"));
    QCOMPARE(editor.takeTold(), closed("NewProject") + opened("Copying"));
    QTRY_COMPARE(editor->project()->name(), str("My first game (2)"));

    change(editor);
    QTRY_COMPARE(editor->openWindows(), QStringList{str("MainWindow")});
    editor.frame()->close();
    QVERIFY(answer(editor, "leave"));
    QVERIFY(editor.told.contains(str("main window closed")));
}

void tst_LeaveQuestion::savingComesFirst()
{
    Editor editor;
    editor.openProject();
    change(editor);
    editor.frame()->close();
    QVERIFY(!editor.told.contains(str("main window closed")));
    QVERIFY(answer(editor, "save"));
    QVERIFY(editor.told.contains(str("main window closed")));
    Editor next;
    next->setProjectsFolder(editor.folder());
    next->open(str("MainWindow"));
    next.click("MainWindow", "fileOpen");
    next.click("FileDialog", "ok");
    QCOMPARE(next.shownMap()->tile(0, {1, 1}), 4);
}

void tst_LeaveQuestion::whatCannotBeSavedIsNotLeft()
{
    Editor editor;
    editor.openProject();
    change(editor);
    QSignalSpy problems(editor.operator->(), &EditorWindows::problemFound);
    QVERIFY(QDir(editor->projectFolder()).removeRecursively());
    QFile inTheWay(editor->projectFolder());
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    editor.frame()->close();
    QVERIFY(answer(editor, "save"));
    QCOMPARE(problems.size(), 1);
    QVERIFY(!editor.told.contains(str("main window closed")));
    QVERIFY(editor->project()->isModified());
}

void tst_LeaveQuestion::anotherProjectIsAskedFor()
{
    Editor editor;
    editor.openProject();
    editor.openProject();
    change(editor);
    editor.click("MainWindow", "fileOpen");
    editor.clickRow("FileDialog", "projects", 0);
    editor.doubleClickRow("FileDialog", "projects", 0);
    QCOMPARE(editor->project()->name(), str("My first game (2)"));
    QVERIFY(answer(editor, "leave"));
    QCOMPARE(editor->project()->name(), str("My first game"));
    QCOMPARE(editor->openWindows(), QStringList{str("MainWindow")});
}

void tst_LeaveQuestion::nobodyIsAskedWhereNobodyIs()
{
    Editor editor;
    editor->setUnattended(true);
    editor.openProject();
    change(editor);
    editor.click("MainWindow", "fileNew");
    editor.click("NewProject", "ok");
    QVERIFY(question(editor) == nullptr);
    QVERIFY(editor->openWindows().contains(str("Copying")));
}

void tst_LeaveQuestion::aWindowThatClosesTakesTheQuestionBack()
{
    Editor editor;
    editor.openProject();
    change(editor);
    editor.click("MainWindow", "fileNew");
    editor.click("NewProject", "ok");
    QVERIFY(question(editor) != nullptr);
    editor->close(str("NewProject"));
    QVERIFY(question(editor) == nullptr);
    QVERIFY(editor->project()->isModified());
}

QTEST_MAIN(tst_LeaveQuestion)
#include "tst_LeaveQuestion.moc"
