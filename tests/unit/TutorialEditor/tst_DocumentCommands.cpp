#include "DocumentFixture.h"
#include "LogCapture.h"
#include "TutorialEditor/InsertTreeItemCommand.h"
#include "TutorialEditor/ModifyTutorialItemDataCommand.h"

#include <QPointer>
#include <QTest>

#include <memory>
#include <utility>

namespace {

PropertyHash target(const char *name)
{
    PropertyHash properties;
    properties.insert(QStringLiteral("target"), QLatin1String(name));
    return properties;
}

const char *const kItems =
    R"([{"id":1,"name":"a","folder":true,"children":[{"id":2,"name":"b"},{"id":3,"name":"c"}]},
                              {"id":4,"name":"d"}])";

/// The same change under another id.
class OtherId final : public ModifyTutorialItemDataCommand
{
public:
    using ModifyTutorialItemDataCommand::ModifyTutorialItemDataCommand;
    [[nodiscard]] int id() const override { return 7; }
};

std::unique_ptr<TutorialItemData> itemWithId(int id)
{
    auto data = std::make_unique<TutorialItemData>();
    data->setId(id);
    return data;
}

} // namespace

class tst_DocumentCommands : public QObject
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
    void theTextsNameWhatTheyDo();
    void commandsWithoutADocumentDoNothing();
    void commandsThatOutliveTheDocumentDoNothing();
    void insertWithoutAHistoryDoesNothing();
    void aCommandThatNeverRanDeletesItsItem();

    void modifyReachesTheFieldsOfItsTable_data();
    void modifyReachesTheFieldsOfItsTable();
    void modifyOfAMissingItemChangesNothing();
    void modifyTellsItsNoteFromTheSecondRedoOn();
    void modifyWithoutANoteLeavesTheOneThatIsThere();
    void undoGivesBackWhatTheLastRedoFound();
    void modifyWithEqualPropertiesMergesWhateverTheItem();
    void otherPropertiesAreClonedAndReplayed();
    void mergeSameNeedsTheHistory();
    void mergeSameNeedsTheSameId();
    void aCloneIsEqual();

    void changeItemIsAStepWithANote();
    void changeItemRefusesWhatItCannotChange();
};

void tst_DocumentCommands::insertGoesWhereTheParentSays_data()
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

void tst_DocumentCommands::insertGoesWhereTheParentSays()
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

void tst_DocumentCommands::insertWithoutItsParentIsLogged()
{
    DocumentFixture fixture;
    LogCapture log;
    insertTreeItem(&fixture.document, 77, -1, 9, itemWithId(9), QString(), {});
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().constFirst().contains(QStringLiteral("InsertTreeItemCommand::redo 71 ")));
    QVERIFY(log.warnings().constFirst().endsWith(QStringLiteral("77 9")));
    fixture.undoRedo().undo();
}

void tst_DocumentCommands::anItemBelowZeroTakesChildrenLikeAFolder()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":-5,\"name\":\"a\"},{\"id\":4,\"name\":\"b\"}]"), QStringList());
    insertTreeItem(&fixture.document, -5, -1, 9, itemWithId(9), QString(), {});
    QCOMPARE(fixture.shape(), QStringLiteral("-5[9] 4"));
    fixture.undoRedo().undo();
    QCOMPARE(fixture.shape(), QStringLiteral("-5 4"));
}

void tst_DocumentCommands::anInsertedNodeIsNoFolder()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    insertTreeItem(&fixture.document, 1, -1, 9, itemWithId(9), QString(), {});
    QVERIFY(!findItem(fixture.tree(), 9)->folder);
    fixture.undoRedo().undo();
}

void tst_DocumentCommands::insertTellsItsNoteFromTheSecondRedoOn()
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

void tst_DocumentCommands::insertWithoutANoteLeavesTheOneThatIsThere()
{
    DocumentFixture fixture;
    insertTreeItem(&fixture.document, -1, -1, 9, itemWithId(9), QString(), {});
    fixture.undoRedo().undo();
    fixture.undoRedo().redo();
    QVERIFY(fixture.host.notes.isEmpty());
    fixture.undoRedo().undo();
}

void tst_DocumentCommands::theCommandOwnsTheItemWhileItIsOut()
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
    QVERIFY(!undone);
    QCOMPARE(fixture.ids(), QStringLiteral("9"));
    delete inserted.data();
    fixture.tree()->items.clear();
}

void tst_DocumentCommands::anItemThatTheDocumentStillHoldsIsNotDeleted()
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
    QVERIFY(!undone);
    left->setName(QStringLiteral("free"));
    QCOMPARE(left->name, QStringLiteral("free"));
}

void tst_DocumentCommands::insertWithoutAHistoryDoesNothing()
{
    const ScenarioTexts texts;
    TutorialEditor::Manager document(&texts);
    auto data = itemWithId(9);
    const QPointer<TutorialItemData> watched = data.get();
    insertTreeItem(&document, -1, -1, 9, std::move(data), QString(), {});
    QVERIFY(!watched);
    QVERIFY(document.tree()->items.isEmpty());
    QVERIFY(document.tree()->root.children.isEmpty());
}

void tst_DocumentCommands::aCommandThatNeverRanDeletesItsItem()
{
    auto data = itemWithId(9);
    const QPointer<TutorialItemData> watched = data.get();
    {
        const InsertTreeItemCommand insert(nullptr, -1, -1, 9, std::move(data), QString(), {});
        QVERIFY(watched);
    }
    QVERIFY(!watched);
}

void tst_DocumentCommands::modifyReachesTheFieldsOfItsTable_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("reached");
    const QVariant number = 12;
    const QVariant text = QStringLiteral("text");
    QTest::newRow("translationId") << QStringLiteral("translationId") << number << true;
    QTest::newRow("x") << QStringLiteral("x") << number << true;
    QTest::newRow("y") << QStringLiteral("y") << number << true;
    QTest::newRow("number as text") << QStringLiteral("x") << QVariant(QStringLiteral("12")) << true;
    QTest::newRow("windowKey") << QStringLiteral("windowKey") << text << true;
    QTest::newRow("condition") << QStringLiteral("condition") << text << true;
    QTest::newRow("hint") << QStringLiteral("hint") << text << true;
    QTest::newRow("hint2") << QStringLiteral("hint2") << text << true;
    QTest::newRow("icon") << QStringLiteral("icon") << text << true;
    QTest::newRow("jump") << QStringLiteral("jump") << number << true;
    QTest::newRow("jumpNo") << QStringLiteral("jumpNo") << number << true;
    QTest::newRow("command") << QStringLiteral("command") << text << true;
    QTest::newRow("showArrow") << QStringLiteral("showArrow") << QVariant(false) << true;
    QTest::newRow("prohibited") << QStringLiteral("prohibited") << QVariant(true) << true;
    QTest::newRow("name") << QStringLiteral("name") << text << false;
    QTest::newRow("id") << QStringLiteral("id") << number << false;
    QTest::newRow("no target") << QString() << number << false;
}

void tst_DocumentCommands::modifyReachesTheFieldsOfItsTable()
{
    QFETCH(QString, field);
    QFETCH(QVariant, value);
    QFETCH(bool, reached);
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"name\":\"a\"}]"), QStringList());
    const QString before = fixture.item(1)->toJson(QString());
    PropertyHash properties;
    if (!field.isEmpty()) {
        properties.insert(QStringLiteral("target"), field);
    }
    fixture.undoRedo().addCommand(
        std::make_unique<ModifyTutorialItemDataCommand>(&fixture.document, 1, properties, value, QString()));
    const QString after = fixture.item(1)->toJson(QString());
    QCOMPARE(after != before, reached);
    if (reached) {
        const QString shown = value.type() == QVariant::String && value != QVariant(QStringLiteral("12"))
                                  ? QStringLiteral("\"text\"")
                                  : value.toString();
        QVERIFY2(after.contains(QStringLiteral("\"%1\":%2,").arg(field, shown)) ||
                     after.endsWith(QStringLiteral("\"%1\":%2}").arg(field, shown)),
                 qPrintable(after));
    }
    fixture.undoRedo().undo();
    QCOMPARE(fixture.item(1)->toJson(QString()), before);
    fixture.undoRedo().redo();
    QCOMPARE(fixture.item(1)->toJson(QString()), after);
}

void tst_DocumentCommands::modifyOfAMissingItemChangesNothing()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"name\":\"a\"}]"), QStringList());
    const QString before = fixture.document.getScenario(false);
    ModifyTutorialItemDataCommand command(&fixture.document, 5, target("x"), 1, QString());
    QVERIFY(!command.apply(1, true, &command));
    command.redo();
    command.undo();
    QCOMPARE(fixture.document.getScenario(false), before);
}

void tst_DocumentCommands::modifyTellsItsNoteFromTheSecondRedoOn()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"name\":\"a\"}]"), QStringList());
    fixture.undoRedo().addCommand(std::make_unique<ModifyTutorialItemDataCommand>(
        &fixture.document, 1, target("x"), 5, QStringLiteral("note")));
    QVERIFY(fixture.host.notes.isEmpty());
    fixture.undoRedo().undo();
    QCOMPARE(fixture.host.notes, QStringList{QStringLiteral("note")});
    fixture.undoRedo().redo();
    QCOMPARE(fixture.host.notes.size(), 2);
}

void tst_DocumentCommands::modifyWithoutANoteLeavesTheOneThatIsThere()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"name\":\"a\"}]"), QStringList());
    fixture.undoRedo().addCommand(
        std::make_unique<ModifyTutorialItemDataCommand>(&fixture.document, 1, target("x"), 5, QString()));
    fixture.undoRedo().undo();
    fixture.undoRedo().redo();
    QVERIFY(fixture.host.notes.isEmpty());
}

void tst_DocumentCommands::undoGivesBackWhatTheLastRedoFound()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"x\":1,\"name\":\"a\"}]"), QStringList());
    fixture.undoRedo().addCommand(
        std::make_unique<ModifyTutorialItemDataCommand>(&fixture.document, 1, target("x"), 5, QString()));
    fixture.undoRedo().undo();
    QCOMPARE(fixture.item(1)->x, 1);
    fixture.item(1)->x = 7;
    fixture.undoRedo().redo();
    QCOMPARE(fixture.item(1)->x, 5);
    fixture.undoRedo().undo();
    QCOMPARE(fixture.item(1)->x, 7);
}

void tst_DocumentCommands::modifyWithEqualPropertiesMergesWhateverTheItem()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"x\":1,\"name\":\"a\"},{\"id\":2,\"x\":2,\"name\":\"b\"}]"),
             QStringList());
    ModifyTutorialItemDataCommand first(&fixture.document, 1, target("x"), 10, QString());
    ModifyTutorialItemDataCommand second(&fixture.document, 2, target("x"), 20, QString());
    fixture.undoRedo().addCommand(
        std::make_unique<ModifyTutorialItemDataCommand>(&fixture.document, 7, target("y"), 0, QString()));
    QVERIFY(fixture.undoRedo().mergeable());
    first.redo();
    second.redo();
    LogCapture log;
    QVERIFY(first.mergeWith(&second));
    QVERIFY(log.contains(QStringLiteral("ModifyTutorialItemDataCommand::mergeWith 545 ")));
    QCOMPARE(first.mergedCount(), 0);
    QCOMPARE(fixture.item(1)->x, 20);
    QCOMPARE(fixture.item(2)->x, 20);
    first.undo();
    QCOMPARE(fixture.item(1)->x, 1);
    QCOMPARE(fixture.item(2)->x, 20);
    first.redo();
    QCOMPARE(fixture.item(1)->x, 20);
}

void tst_DocumentCommands::otherPropertiesAreClonedAndReplayed()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"x\":1,\"y\":2,\"name\":\"a\"}]"), QStringList());
    fixture.undoRedo().beginSingle(QStringLiteral("move"));
    fixture.undoRedo().addCommand(
        std::make_unique<ModifyTutorialItemDataCommand>(&fixture.document, 1, target("x"), 10, QString()));
    // A command that is folded in belongs to nobody. As a clone, the leak check knows it by name.
    fixture.undoRedo().addCommand(
        ModifyTutorialItemDataCommand(&fixture.document, 1, target("y"), 20, QString()).clone());
    fixture.undoRedo().endSingle();
    QCOMPARE(fixture.item(1)->x, 10);
    QCOMPARE(fixture.item(1)->y, 20);
    fixture.undoRedo().undo();
    QVERIFY(!fixture.undoRedo().canUndo());
    QCOMPARE(fixture.item(1)->x, 1);
    QCOMPARE(fixture.item(1)->y, 2);
    fixture.undoRedo().redo();
    QCOMPARE(fixture.item(1)->x, 10);
    QCOMPARE(fixture.item(1)->y, 20);
}

void tst_DocumentCommands::mergeSameNeedsTheHistory()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"x\":1,\"name\":\"a\"}]"), QStringList());
    ModifyTutorialItemDataCommand command(&fixture.document, 1, target("x"), 10, QString());
    const ModifyTutorialItemDataCommand same(&fixture.document, 1, target("x"), 20, QString());
    QVERIFY(!fixture.undoRedo().mergeable());
    QVERIFY(!command.mergeSame(same));
    UndoRedo::publish(nullptr);
    QVERIFY(!command.mergeSame(same));
    QCOMPARE(fixture.item(1)->x, 1);
}

void tst_DocumentCommands::mergeSameNeedsTheSameId()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"x\":1,\"name\":\"a\"}]"), QStringList());
    fixture.undoRedo().addCommand(
        std::make_unique<ModifyTutorialItemDataCommand>(&fixture.document, 1, target("y"), 0, QString()));
    QVERIFY(fixture.undoRedo().mergeable());
    ModifyTutorialItemDataCommand command(&fixture.document, 1, target("x"), 10, QString());
    QVERIFY(!command.mergeSame(OtherId(&fixture.document, 1, target("x"), 20, QString())));
    QCOMPARE(fixture.item(1)->x, 1);
    QVERIFY(
        command.mergeSame(ModifyTutorialItemDataCommand(&fixture.document, 1, target("x"), 20, QString())));
    QCOMPARE(fixture.item(1)->x, 20);
}

void tst_DocumentCommands::aCloneIsEqual()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"x\":1,\"name\":\"a\"}]"), QStringList());
    ModifyTutorialItemDataCommand command(&fixture.document, 1, target("x"), 10, QStringLiteral("note"));
    command.redo();
    const std::unique_ptr<UndoMergeableCommand> clone(command.clone());
    QCOMPARE(clone->text(), command.text());
    QCOMPARE(clone->value(), command.value());
    clone->undo();
    QCOMPARE(fixture.item(1)->x, 1);
    QCOMPARE(fixture.host.notes, QStringList{QStringLiteral("note")});
    clone->redo(); // no longer the first
    QCOMPARE(fixture.host.notes.size(), 2);
}

void tst_DocumentCommands::changeItemIsAStepWithANote()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    QVERIFY(changeItem(&fixture.document, 2, QStringLiteral("x"), 5));
    QCOMPARE(fixture.item(2)->x, 5);
    QCOMPARE(fixture.item(3)->x, -9999);
    fixture.undoRedo().undo();
    QCOMPARE(fixture.item(2)->x, -9999);
    QCOMPARE(fixture.host.notes, QStringList{fixture.item(2)->changeNote()});
    fixture.undoRedo().redo();
    QCOMPARE(fixture.item(2)->x, 5);
}

void tst_DocumentCommands::changeItemRefusesWhatItCannotChange()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load(kItems), QStringList());
    const QString before = fixture.document.getScenario(false);
    QVERIFY(!changeItem(&fixture.document, 77, QStringLiteral("x"), 5));
    QVERIFY(!changeItem(&fixture.document, 2, QStringLiteral("name"), QStringLiteral("n")));
    QVERIFY(!changeItem(&fixture.document, 2, QStringLiteral("X"), 5));
    QVERIFY(!fixture.undoRedo().canUndo());
    UndoRedo::publish(nullptr);
    QVERIFY(!changeItem(&fixture.document, 2, QStringLiteral("x"), 5));
    QCOMPARE(fixture.document.getScenario(false), before);
}

QTEST_MAIN(tst_DocumentCommands)
#include "tst_DocumentCommands.moc"
