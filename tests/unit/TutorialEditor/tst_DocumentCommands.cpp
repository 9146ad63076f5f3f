#include "CommandSamples.h"
#include "DocumentFixture.h"
#include "TutorialEditor/InsertTreeItemCommand.h"
#include "TutorialEditor/ModifyTutorialItemDataCommand.h"

#include <QPointer>
#include <QTest>

#include <memory>

/// What the commands of a document have in common.
class tst_DocumentCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTextsNameWhatTheyDo();
    void commandsWithoutADocumentDoNothing();
    void commandsThatOutliveTheDocumentDoNothing();
};

void tst_DocumentCommands::theTextsNameWhatTheyDo()
{
    const InsertTreeItemCommand insert(nullptr, 3, -1, 9, itemWithId(9), QString(), {});
    QCOMPARE(insert.text(), QStringLiteral("InsertTreeItemCommand(3, -1, 9)"));
    const ModifyTutorialItemDataCommand modify(nullptr, 9, target("hint"), QStringLiteral("a %1 b"),
                                               QString());
    QCOMPARE(modify.text(), QStringLiteral("ModifyTutorialItemDataCommand(9: target:hint, a %1 b)"));
    QCOMPARE(modify.id(), 0);
    QCOMPARE(modify.commandType(), 1);
    PropertyHash two = target("x");
    two.insert(QStringLiteral("other"), 5);
    const QString text = ModifyTutorialItemDataCommand(nullptr, 9, two, 1, QString()).text();
    QVERIFY2(text == QStringLiteral("ModifyTutorialItemDataCommand(9: target:x,other:5, 1)") ||
                 text == QStringLiteral("ModifyTutorialItemDataCommand(9: other:5,target:x, 1)"),
             qPrintable(text));
}

void tst_DocumentCommands::commandsWithoutADocumentDoNothing()
{
    InsertTreeItemCommand insert(nullptr, -1, -1, 9, itemWithId(9), QStringLiteral("n"), {});
    insert.redo();
    insert.undo();
    ModifyTutorialItemDataCommand modify(nullptr, 9, target("x"), 1, QStringLiteral("n"));
    modify.redo();
    modify.undo();
    QVERIFY(!modify.apply(1, false, &modify));
}

void tst_DocumentCommands::commandsThatOutliveTheDocumentDoNothing()
{
    RecordingHost host;
    UndoRedo history(nullptr, &host);
    const ScenarioTexts texts;
    auto document = std::make_unique<TutorialEditor::Manager>(&texts, [&history] { return &history; });
    insertTreeItem(document.get(), -1, -1, 9, itemWithId(9), QStringLiteral("inserted"), {});
    insertTreeItem(document.get(), -1, -1, 10, itemWithId(10), QStringLiteral("inserted"), {});
    const QPointer<TutorialItemData> undone = document->tree()->items.last();
    const std::unique_ptr<TutorialItemData> left(document->tree()->items.first());
    history.addCommand(std::make_unique<ModifyTutorialItemDataCommand>(document.get(), 9, target("x"), 5,
                                                                       QStringLiteral("modified")));
    history.undo();
    history.undo();
    host.notes.clear();
    document.reset();
    history.redo();
    history.redo();
    history.undo();
    history.undo();
    history.undo();
    QVERIFY(!history.canUndo());
    QCOMPARE(left->x, -9999);
    // A change tells its note wherever its item is; an item that cannot be put anywhere has none to tell.
    QCOMPARE(host.notes, (QStringList{QStringLiteral("modified"), QStringLiteral("modified")}));
    QVERIFY(undone); // the command still owns it
    history.clear();
    QVERIFY(undone == nullptr);
    left->setName(QStringLiteral("free"));
    QCOMPARE(left->name, QStringLiteral("free"));
}

QTEST_MAIN(tst_DocumentCommands)
#include "tst_DocumentCommands.moc"
