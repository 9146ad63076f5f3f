#include "CommandSamples.h"
#include "DocumentFixture.h"
#include "LogCapture.h"
#include "TutorialEditor/InsertTreeItemCommand.h"

#include <QPointer>
#include <QTest>

#include <utility>

class tst_InsertTreeItemCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void insertGoesWhereTheParentSays_data();
    void insertGoesWhereTheParentSays();
    void insertWithoutItsParentIsLogged();
    void anItemBelowZeroTakesChildrenLikeAFolder();
    void anInsertedNodeIsNoFolder();
    void insertTellsItsNoteFromTheSecondRedoOn();
    void insertWithoutANoteLeavesTheOneThatIsThere();
    void theCommandOwnsTheItemWhileItIsOut();
    void anItemThatTheDocumentStillHoldsIsNotDeleted();
    void insertWithoutAHistoryDoesNothing();
    void aCommandThatNeverRanDeletesItsItem();
};

void tst_InsertTreeItemCommand::insertGoesWhereTheParentSays_data()
{
    QTest::addColumn<int>("parent");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("shape");
    QTest::newRow("end of the top level") << -1 << -1 << QStringLiteral("1F[2 3] 4 9");
    QTest::newRow("place at the top level") << -1 << 1 << QStringLiteral("1F[2 3] 9 4");
    QTest::newRow("end of a folder") << 1 << -1 << QStringLiteral("1F[2 3 9] 4");
    QTest::newRow("start of a folder") << 1 << 0 << QStringLiteral("1F[9 2 3] 4");
    QTest::newRow("beyond the end of a folder") << 1 << 7 << QStringLiteral("1F[2 3 9] 4");
    QTest::newRow("behind an item in a folder") << 2 << -1 << QStringLiteral("1F[2 9 3] 4");
    QTest::newRow("behind the last item") << 4 << -1 << QStringLiteral("1F[2 3] 4 9");
    QTest::newRow("place beside an item") << 3 << 0 << QStringLiteral("1F[9 2 3] 4");
    QTest::newRow("no such parent") << 77 << 0 << QStringLiteral("1F[2 3] 4 9");
    QTest::newRow("no such parent below zero") << -7 << 0 << QStringLiteral("1F[2 3] 4 9");
}

void tst_InsertTreeItemCommand::insertGoesWhereTheParentSays()
{
    QFETCH(int, parent);
    QFETCH(int, index);
    QFETCH(QString, shape);
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    insertTreeItem(&fixture.document, parent, index, 9, itemWithId(9), QString(), {});
    const TutorialItemData *data = fixture.item(9);
    QVERIFY(data);
    QCOMPARE(fixture.shape(), shape);
    QCOMPARE(fixture.ids(), QStringLiteral("1 2 3 4 9"));
    fixture.undoRedo().undo();
    QCOMPARE(fixture.shape(), QStringLiteral("1F[2 3] 4"));
    QCOMPARE(fixture.ids(), QStringLiteral("1 2 3 4"));
    fixture.undoRedo().redo();
    QCOMPARE(fixture.shape(), shape);
    QCOMPARE(fixture.item(9), data);
    fixture.undoRedo().undo();
}

void tst_InsertTreeItemCommand::insertWithoutItsParentIsLogged()
{
    DocumentFixture fixture;
    LogCapture log;
    insertTreeItem(&fixture.document, 77, -1, 9, itemWithId(9), QString(), {});
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().constFirst().contains(QStringLiteral("InsertTreeItemCommand::redo 71 ")));
    QVERIFY(log.warnings().constFirst().endsWith(QStringLiteral("77 9")));
    fixture.undoRedo().undo();
}

void tst_InsertTreeItemCommand::anItemBelowZeroTakesChildrenLikeAFolder()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":-5,\"name\":\"a\"},{\"id\":4,\"name\":\"b\"}]"), QStringList());
    insertTreeItem(&fixture.document, -5, -1, 9, itemWithId(9), QString(), {});
    QCOMPARE(fixture.shape(), QStringLiteral("-5[9] 4"));
    fixture.undoRedo().undo();
    QCOMPARE(fixture.shape(), QStringLiteral("-5 4"));
}

void tst_InsertTreeItemCommand::anInsertedNodeIsNoFolder()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    insertTreeItem(&fixture.document, 1, -1, 9, itemWithId(9), QString(), {});
    QVERIFY(!findItem(fixture.tree(), 9)->folder);
    fixture.undoRedo().undo();
}

void tst_InsertTreeItemCommand::insertTellsItsNoteFromTheSecondRedoOn()
{
    DocumentFixture fixture;
    insertTreeItem(&fixture.document, -1, -1, 9, itemWithId(9), QStringLiteral("note"), {});
    QVERIFY(fixture.host.notes.isEmpty());
    fixture.undoRedo().undo();
    QCOMPARE(fixture.host.notes, QStringList{QStringLiteral("note")});
    fixture.undoRedo().redo();
    QCOMPARE(fixture.host.notes.size(), 2);
    fixture.undoRedo().undo();
}

void tst_InsertTreeItemCommand::insertWithoutANoteLeavesTheOneThatIsThere()
{
    DocumentFixture fixture;
    insertTreeItem(&fixture.document, -1, -1, 9, itemWithId(9), QString(), {});
    fixture.undoRedo().undo();
    fixture.undoRedo().redo();
    QVERIFY(fixture.host.notes.isEmpty());
    fixture.undoRedo().undo();
}

void tst_InsertTreeItemCommand::theCommandOwnsTheItemWhileItIsOut()
{
    DocumentFixture fixture;
    insertTreeItem(&fixture.document, -1, -1, 9, itemWithId(9), QString(), {});
    const QPointer<TutorialItemData> inserted = fixture.item(9);
    fixture.undoRedo().clear();
    QVERIFY(inserted); // it is in the document
    insertTreeItem(&fixture.document, -1, -1, 10, itemWithId(10), QString(), {});
    const QPointer<TutorialItemData> undone = fixture.item(10);
    fixture.undoRedo().undo();
    QVERIFY(undone);
    fixture.undoRedo().clear();
    QVERIFY(undone == nullptr);
    QCOMPARE(fixture.ids(), QStringLiteral("9"));
    delete inserted.data();
    fixture.tree()->items.clear();
}

void tst_InsertTreeItemCommand::anItemThatTheDocumentStillHoldsIsNotDeleted()
{
    DocumentFixture fixture;
    insertTreeItem(&fixture.document, -1, -1, 9, itemWithId(9), QString(), {});
    const QPointer<TutorialItemData> data = fixture.item(9);
    fixture.undoRedo().undo();
    // Another document brings an item with that id; the undo takes the first one out.
    QCOMPARE(fixture.load("[{\"id\":9,\"name\":\"other\"}]"), QStringList());
    fixture.undoRedo().redo();
    QCOMPARE(fixture.ids(), QStringLiteral("9 9"));
    fixture.undoRedo().undo();
    QCOMPARE(fixture.tree()->items, QList<TutorialItemData *>{data});
    fixture.undoRedo().clear();
    QVERIFY(data);
    delete data.data();
    fixture.tree()->items.clear();
}

void tst_InsertTreeItemCommand::insertWithoutAHistoryDoesNothing()
{
    const ScenarioTexts texts;
    TutorialEditor::Manager document(&texts);
    auto data = itemWithId(9);
    const QPointer<TutorialItemData> watched = data.get();
    insertTreeItem(&document, -1, -1, 9, std::move(data), QString(), {});
    QVERIFY(watched == nullptr);
    QVERIFY(document.tree()->items.isEmpty());
    QVERIFY(document.tree()->root.children.isEmpty());
}

void tst_InsertTreeItemCommand::aCommandThatNeverRanDeletesItsItem()
{
    auto data = itemWithId(9);
    const QPointer<TutorialItemData> watched = data.get();
    {
        const InsertTreeItemCommand insert(nullptr, -1, -1, 9, std::move(data), QString(), {});
        QVERIFY(watched);
    }
    QVERIFY(watched == nullptr);
}

QTEST_MAIN(tst_InsertTreeItemCommand)
#include "tst_InsertTreeItemCommand.moc"
