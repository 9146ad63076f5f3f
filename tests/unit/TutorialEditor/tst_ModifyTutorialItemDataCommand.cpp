#include "CommandSamples.h"
#include "DocumentFixture.h"
#include "LogCapture.h"
#include "TutorialEditor/ModifyTutorialItemDataCommand.h"

#include <QTest>

#include <memory>

namespace {

/// The same change under another id.
class OtherId final : public ModifyTutorialItemDataCommand
{
public:
    using ModifyTutorialItemDataCommand::ModifyTutorialItemDataCommand;
    [[nodiscard]] int id() const override { return 7; }
};

} // namespace

class tst_ModifyTutorialItemDataCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

void tst_ModifyTutorialItemDataCommand::modifyReachesTheFieldsOfItsTable_data()
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

void tst_ModifyTutorialItemDataCommand::modifyReachesTheFieldsOfItsTable()
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

void tst_ModifyTutorialItemDataCommand::modifyOfAMissingItemChangesNothing()
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

void tst_ModifyTutorialItemDataCommand::modifyTellsItsNoteFromTheSecondRedoOn()
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

void tst_ModifyTutorialItemDataCommand::modifyWithoutANoteLeavesTheOneThatIsThere()
{
    DocumentFixture fixture;
    QCOMPARE(fixture.load("[{\"id\":1,\"name\":\"a\"}]"), QStringList());
    fixture.undoRedo().addCommand(
        std::make_unique<ModifyTutorialItemDataCommand>(&fixture.document, 1, target("x"), 5, QString()));
    fixture.undoRedo().undo();
    fixture.undoRedo().redo();
    QVERIFY(fixture.host.notes.isEmpty());
}

void tst_ModifyTutorialItemDataCommand::undoGivesBackWhatTheLastRedoFound()
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

void tst_ModifyTutorialItemDataCommand::modifyWithEqualPropertiesMergesWhateverTheItem()
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

void tst_ModifyTutorialItemDataCommand::otherPropertiesAreClonedAndReplayed()
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

void tst_ModifyTutorialItemDataCommand::mergeSameNeedsTheHistory()
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

void tst_ModifyTutorialItemDataCommand::mergeSameNeedsTheSameId()
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

void tst_ModifyTutorialItemDataCommand::aCloneIsEqual()
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

void tst_ModifyTutorialItemDataCommand::changeItemIsAStepWithANote()
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

void tst_ModifyTutorialItemDataCommand::changeItemRefusesWhatItCannotChange()
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

QTEST_MAIN(tst_ModifyTutorialItemDataCommand)
#include "tst_ModifyTutorialItemDataCommand.moc"
