#include "AuthoringTest.h"
#include "LogCapture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>

/// The document, driven by name as an author's tool drives it: changes, their history and the clipboard.
class tst_Authoring : public AuthoringTest
{
    Q_OBJECT

private Q_SLOTS:
    void aLessonGoesRound();
    void aRenameIsSaved();
    void aRenameInATransactionIsAStepThatLeavesTheName();
    void aRenameInATransactionIsUndoneWithItsNote();
    void aDragIsOneStep();
    void changesOfTwoItemsAreTwoSteps();
    void modifiedFollowsTheSavedPosition();
    void loadingLeavesTheHistoryAndModified();

    void aPasteWithoutATransactionLeavesTheHistory();
    void aPasteInASingleTransactionIsAStepForEachItem();
    void aPasteInASequenceIsOneStep();
    void aPastedFolderIsSavedWithoutItsChildren();
    void pastingTwiceGivesNamesWithNumbers();
    void theClipboardOutlivesTheDocument();
    void anUnknownIdLeavesTheClipboard();
    void noIdsAreAListToo();
    void aClearedClipboardPastesNothing();
    void theClipboardStaysInsideTheProgram();

    void unloadingDropsTheDocumentAndKeepsTheFile();
};

void tst_Authoring::aLessonGoesRound()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QCOMPARE(m_tool->manager()->property("tutorialName").toString(), QStringLiteral("Lesson"));
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4"));
    QCOMPARE(m_tool->item(4)->name, QStringLiteral("item001"));

    m_tool->item(1)->setName(QStringLiteral("Welcome"));
    const QString renamed = m_tool->document();
    m_tool->change(QStringLiteral("move"), 1, "x", 33);
    const QString moved = m_tool->document();
    QVERIFY(m_tool->copy({1, 3}));
    QVERIFY(m_tool->call(m_tool->history(), "beginSequence", QStringLiteral("paste")));
    QCOMPARE(m_tool->paste(), (QList<int>{5, 6}));
    QVERIFY(m_tool->call(m_tool->history(), "endSequence"));
    const QString pasted = m_tool->document();
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4 5 6"));
    QCOMPARE(m_tool->item(5)->name, QStringLiteral("Welcome(1)"));
    QCOMPARE(m_tool->item(5)->x, 33);
    QCOMPARE(m_tool->item(6)->name, QStringLiteral("Inside(1)"));
    QCOMPARE(m_tool->item(6)->translationId, 5);

    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->document(), moved);
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->document(), renamed);
    QVERIFY(!m_tool->canUndo());
    QVERIFY(m_tool->redo());
    QCOMPARE(m_tool->document(), moved);
    QVERIFY(m_tool->redo());
    QCOMPARE(m_tool->document(), pasted);
    QVERIFY(!m_tool->canRedo());

    QVERIFY(m_tool->modified());
    QCOMPARE(m_tool->text("save"), QString());
    QVERIFY(!m_tool->modified());
    const QByteArray saved = m_tool->contentOf(lesson());
    QVERIFY(saved.startsWith("\xEF\xBB\xBFvar scenario = [\n    {\n\"id\":1,\n\"name\":\"Welcome\",\n"));
    QVERIFY(saved.endsWith("\n];"));
    QVERIFY(saved.contains("\"hint\":qsTr(\"#1\")"));

    QCOMPARE(m_tool->load(lesson()), QString());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4 5 6"));
    // The hints of the copies refer to their new numbers, for which there is no text.
    QCOMPARE(m_tool->item(5)->hint, QStringLiteral("#4"));
    QCOMPARE(m_tool->item(6)->hint, QStringLiteral("#5"));
    QCOMPARE(m_tool->text("save"), QString());
    QCOMPARE(m_tool->contentOf(lesson()), saved);
}

void tst_Authoring::aRenameIsSaved()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->item(3)->setName(QStringLiteral("Renamed \"here\""));
    QVERIFY(!m_tool->canUndo());
    QVERIFY(!m_tool->modified()); // only the history marks the document
    QCOMPARE(m_tool->text("save"), QString());
    QCOMPARE(m_tool->load(lesson()), QString());
    QCOMPARE(m_tool->item(3)->name, QStringLiteral("Renamed \"here\""));
}

void tst_Authoring::aRenameInATransactionIsAStepThatLeavesTheName()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    const QString before = m_tool->document();
    QVERIFY(m_tool->call(m_tool->history(), "beginSingle", QStringLiteral("rename")));
    m_tool->item(1)->setName(QStringLiteral("Welcome"));
    QVERIFY(m_tool->call(m_tool->history(), "endSingle"));
    QCOMPARE(m_tool->document(), before);
    QVERIFY(m_tool->canUndo());
    QVERIFY(m_tool->modified());
    QCOMPARE(m_tool->text("save"), QString());
    QVERIFY(!m_tool->modified());
    QCOMPARE(m_tool->load(lesson()), QString());
    QCOMPARE(m_tool->item(1)->name, QStringLiteral("Intro"));
}

void tst_Authoring::aRenameInATransactionIsUndoneWithItsNote()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QVERIFY(m_tool->call(m_tool->history(), "beginSingle", QStringLiteral("rename")));
    m_tool->item(3)->setName(QStringLiteral("Other"));
    QVERIFY(m_tool->call(m_tool->history(), "endSingle"));
    QCOMPARE(m_tool->undoNote(), QString());
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->undoNote(), QStringLiteral("{ \"tutorialItemId\": 3 }"));
    QVERIFY(!m_tool->modified());
    // A sequence without a command takes the note away.
    QVERIFY(m_tool->call(m_tool->history(), "beginSequence", QStringLiteral("nothing")));
    QVERIFY(m_tool->call(m_tool->history(), "endSequence"));
    QCOMPARE(m_tool->undoNote(), QString());
    QVERIFY(!m_tool->canUndo());
    QVERIFY(!m_tool->canRedo());
}

void tst_Authoring::aDragIsOneStep()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    const QString before = m_tool->document();
    for (int i = 1; i <= 5; ++i) {
        m_tool->change(QStringLiteral("drag"), 1, "x", 100 + i);
        m_tool->now = m_tool->now.addMSecs(999);
    }
    QCOMPARE(m_tool->item(1)->x, 105);
    m_tool->now = m_tool->now.addMSecs(1);
    m_tool->change(QStringLiteral("drag"), 1, "x", 7); // 1000 ms after the last one began
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->item(1)->x, 105);
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->document(), before);
    QVERIFY(!m_tool->canUndo());
    QVERIFY(m_tool->redo());
    QCOMPARE(m_tool->item(1)->x, 105);
}

void tst_Authoring::changesOfTwoItemsAreTwoSteps()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->change(QStringLiteral("move 1"), 1, "x", 11);
    m_tool->change(QStringLiteral("move 3"), 3, "x", 33);
    QCOMPARE(m_tool->item(1)->x, 11);
    QCOMPARE(m_tool->item(3)->x, 33);
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->item(1)->x, 11);
    QCOMPARE(m_tool->item(3)->x, -9999);
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->item(1)->x, 10);
}

void tst_Authoring::modifiedFollowsTheSavedPosition()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QSignalSpy changed(m_tool->manager(), &TutorialManager::modifiedChanged);
    QSignalSpy canUndo(m_tool->history(), &UndoRedo::canUndoChanged);
    m_tool->change(QStringLiteral("move"), 1, "y", 1);
    QVERIFY(m_tool->modified());
    QCOMPARE(changed.size(), 1);
    QCOMPARE(canUndo.size(), 1);
    QVERIFY(m_tool->undo());
    QVERIFY(!m_tool->modified());
    QVERIFY(m_tool->redo());
    QVERIFY(m_tool->modified());
    QCOMPARE(m_tool->text("save"), QString());
    QVERIFY(!m_tool->modified());
    QVERIFY(m_tool->undo());
    QVERIFY(m_tool->modified());
    QVERIFY(m_tool->redo());
    QVERIFY(!m_tool->modified());
    QCOMPARE(changed.size(), 6);
}

void tst_Authoring::loadingLeavesTheHistoryAndModified()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->change(QStringLiteral("move"), 1, "y", 1);
    QCOMPARE(m_tool->load(lesson()), QString());
    QCOMPARE(m_tool->item(1)->y, 20);
    QVERIFY(m_tool->canUndo());
    QVERIFY(m_tool->modified());
    QVERIFY(m_tool->call(m_tool->history(), "clear"));
    QVERIFY(!m_tool->canUndo());
    QVERIFY(!m_tool->modified());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4"));
}

void tst_Authoring::aPasteWithoutATransactionLeavesTheHistory()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QVERIFY(m_tool->copy({4, 1}));
    QCOMPARE(m_tool->paste(), (QList<int>{5, 6}));
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4 5 6"));
    QCOMPARE(m_tool->item(5)->name, QStringLiteral("item001(1)"));
    QVERIFY(!m_tool->canUndo());
    QVERIFY(!m_tool->modified());
    QCOMPARE(m_tool->text("save"), QString());
    QCOMPARE(m_tool->load(lesson()), QString());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4 5 6"));
    QCOMPARE(m_tool->item(6)->windowKey, QStringLiteral("MainWindow"));
}

void tst_Authoring::aPasteInASingleTransactionIsAStepForEachItem()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QVERIFY(m_tool->copy({4, 1}));
    QVERIFY(m_tool->call(m_tool->history(), "beginSingle", QStringLiteral("paste")));
    QCOMPARE(m_tool->paste(), (QList<int>{5, 6}));
    QVERIFY(m_tool->call(m_tool->history(), "endSingle"));
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4 5"));
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4"));
    QVERIFY(!m_tool->canUndo());
    // What is out of the document is free again.
    QCOMPARE(m_tool->paste(), (QList<int>{5, 6}));
}

void tst_Authoring::aPasteInASequenceIsOneStep()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QVERIFY(m_tool->copy({2, 4}));
    QVERIFY(m_tool->call(m_tool->history(), "beginSequence", QStringLiteral("paste")));
    QCOMPARE(m_tool->paste(), (QList<int>{5, 7}));
    QVERIFY(m_tool->call(m_tool->history(), "endSequence"));
    // The copy of the folder is no folder, and the copied child stands in the folder that was copied.
    const QString shape = QStringLiteral("1 2[3 6] 4 5 7");
    QCOMPARE(m_tool->shape(), shape);
    const QString pasted = m_tool->document();
    QVERIFY(m_tool->undo());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4"));
    QVERIFY(!m_tool->canUndo());
    QVERIFY(m_tool->redo());
    QCOMPARE(m_tool->document(), pasted);
    QCOMPARE(m_tool->text("save"), QString());
    QCOMPARE(m_tool->load(lesson()), QString());
    QCOMPARE(m_tool->shape(), shape);
}

void tst_Authoring::aPastedFolderIsSavedWithoutItsChildren()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QVERIFY(m_tool->copy({2}));
    QCOMPARE(m_tool->paste(), QList<int>{5});
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4 5[]"));
    QVERIFY(m_tool->item(6)); // among the items, and nowhere in the tree
    QCOMPARE(m_tool->text("save"), QString());
    QCOMPARE(m_tool->load(lesson()), QString());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4 5[]"));
    QVERIFY(!m_tool->item(6));
}

void tst_Authoring::pastingTwiceGivesNamesWithNumbers()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QVERIFY(m_tool->copy({1}));
    QCOMPARE(m_tool->paste(), QList<int>{5});
    QCOMPARE(m_tool->paste(), QList<int>{6});
    QCOMPARE(m_tool->item(5)->name, QStringLiteral("Intro(1)"));
    QCOMPARE(m_tool->item(6)->name, QStringLiteral("Intro(2)"));
    QCOMPARE(m_tool->item(5)->translationId, 4);
    QCOMPARE(m_tool->item(6)->translationId, 5);
}

void tst_Authoring::theClipboardOutlivesTheDocument()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QVERIFY(m_tool->copy({3}));
    const QString other =
        m_tool->file(QStringLiteral("Other.js"), "var scenario = [{\"id\":3,\"name\":\"Inside\"}];");
    QCOMPARE(m_tool->load(other), QString());
    QCOMPARE(m_tool->paste(), QList<int>{1});
    QCOMPARE(m_tool->shape(), QStringLiteral("3 1"));
    QCOMPARE(m_tool->item(1)->name, QStringLiteral("Inside(1)"));
    QCOMPARE(m_tool->text("save"), QString());
    QVERIFY(m_tool->contentOf(other).contains("Inside(1)"));
    QCOMPARE(m_tool->contentOf(lesson()), lessonText());
}

void tst_Authoring::anUnknownIdLeavesTheClipboard()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QVERIFY(m_tool->copy({99}));
    QCOMPARE(m_tool->manager()->property("mimeType").toString(), QString());
    QVERIFY(m_tool->copy({4}));
    QSignalSpy changed(m_tool->manager(), &TutorialManager::mimeTypeChanged);
    LogCapture log;
    QVERIFY(m_tool->copy({1, 99, 3}));
    QCOMPARE(log.lines(),
             QStringList{sourceLabel() +
                         QStringLiteral("TutorialManager::copyTutorialItemList 1573 treeItem not found 99")});
    QCOMPARE(changed.size(), 0);
    QCOMPARE(m_tool->paste(), QList<int>{5});
    QCOMPARE(m_tool->item(5)->name, QStringLiteral("item001(1)"));
}

void tst_Authoring::noIdsAreAListToo()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QSignalSpy changed(m_tool->manager(), &TutorialManager::mimeTypeChanged);
    QVERIFY(m_tool->copy({}));
    QCOMPARE(m_tool->manager()->property("mimeType").toString(), QStringLiteral("TutorialItemData/ItemList"));
    QVERIFY(m_tool->copy({1}));
    QVERIFY(m_tool->copy({}));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(m_tool->paste(), QList<int>());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4"));
}

void tst_Authoring::aClearedClipboardPastesNothing()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    QCOMPARE(m_tool->paste(), QList<int>());
    QVERIFY(m_tool->copy({1}));
    QVERIFY(m_tool->call(m_tool->manager(), "clearMimeData"));
    QCOMPARE(m_tool->manager()->property("mimeType").toString(), QStringLiteral("Empty"));
    QCOMPARE(m_tool->paste(), QList<int>());
    QCOMPARE(m_tool->shape(), QStringLiteral("1 2[3] 4"));
}

void tst_Authoring::theClipboardStaysInsideTheProgram()
{
    QClipboard *desktop = QGuiApplication::clipboard();
    desktop->setText(QStringLiteral("mine"));
    QCOMPARE(m_tool->load(lesson()), QString());
    QCoreApplication::processEvents();
    const QSignalSpy changed(desktop, &QClipboard::changed);
    QVERIFY(m_tool->copy({1}));
    QCOMPARE(m_tool->paste(), QList<int>{5});
    QVERIFY(m_tool->call(m_tool->manager(), "clearMimeData"));
    QCOMPARE(m_tool->paste(), QList<int>());
    // The first thing that the host editor hears is what is sent now.
    QVERIFY(m_tool->call(m_tool->manager(), "connected"));
    QCOMPARE(m_tool->nextPayload(), QStringLiteral("tutorialReady"));
    QCOMPARE(changed.size(), 0);
    QCOMPARE(desktop->text(), QStringLiteral("mine"));
}

void tst_Authoring::unloadingDropsTheDocumentAndKeepsTheFile()
{
    QCOMPARE(m_tool->load(lesson()), QString());
    m_tool->change(QStringLiteral("move"), 1, "y", 1);
    QVERIFY(m_tool->call(m_tool->manager(), "unload"));
    QCOMPARE(m_tool->shape(), QString());
    QVERIFY(!m_tool->canUndo());
    QVERIFY(!m_tool->modified());
    QCOMPARE(m_tool->manager()->property("tutorialName").toString(), QString());
    QCOMPARE(m_tool->contentOf(lesson()), lessonText());
    QCOMPARE(m_tool->text("save"), QString());
    QCOMPARE(m_tool->contentOf(lesson()), QByteArray("\xEF\xBB\xBFvar scenario = [\n\n];"));
}

int main(int argc, char **argv)
{
    return runWithKey<tst_Authoring>(argc, argv);
}

#include "tst_Authoring.moc"
