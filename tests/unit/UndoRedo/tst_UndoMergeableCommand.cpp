#include "LogCapture.h"
#include "RecordingCommand.h"
#include "UndoRedo/UndoRedo.h"

#include <QTest>

#include <memory>

class tst_UndoMergeableCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsMergeableWithIdZero();
    void theSameThingTakesTheNewValue();
    void anotherThingIsClonedIntoTheList();
    void aClonedThingTakesItsNewValueFirst();
    void undoIsNewestFirstAndRedoOldestFirst();
    void anUnmergeableCommandRefuses();
    void refusesWhileTheHistoryForbidsMerging();
    void refusesWithoutAHistory();
    void refusesACommandOfAnotherKind();
    void anUnmergeableCloneBreaksTheSearch();
    void theSearchBeginsAtTheNewestClone();
    void aCloneTakesNoClones();

private:
    [[nodiscard]] static bool hasNumber(const LogCapture &log, int number);
    /// As the log writes it.
    [[nodiscard]] static QString address(const QUndoCommand &command);
    /// Folds @p other in; the clone that came of it.
    [[nodiscard]] static RecordingCommand *append(RecordingCommand *command, const RecordingCommand &other);

    std::unique_ptr<UndoRedo> m_undoRedo;
};

void tst_UndoMergeableCommand::init()
{
    m_undoRedo = std::make_unique<UndoRedo>();
    UndoRedo::publish(m_undoRedo.get());
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("any")));
    QVERIFY(m_undoRedo->mergeable());
    RecordingCommand::journal().clear();
}

void tst_UndoMergeableCommand::cleanup()
{
    m_undoRedo.reset();
    RecordingCommand::deleteLeftovers();
}

bool tst_UndoMergeableCommand::hasNumber(const LogCapture &log, int number)
{
    return log.contains(QStringLiteral("UndoMergeableCommand::mergeWith %1 ").arg(number));
}

QString tst_UndoMergeableCommand::address(const QUndoCommand &command)
{
    return QStringLiteral("0x%1").arg(reinterpret_cast<quintptr>(&command), 0, 16);
}

RecordingCommand *tst_UndoMergeableCommand::append(RecordingCommand *command, const RecordingCommand &other)
{
    const QSet<RecordingCommand *> before = RecordingCommand::alive();
    const bool merged = command->mergeWith(&other);
    const QSet<RecordingCommand *> clones =
        QSet<RecordingCommand *>(RecordingCommand::alive()).subtract(before);
    return merged && clones.size() == 1 ? *clones.begin() : nullptr;
}

void tst_UndoMergeableCommand::startsMergeableWithIdZero()
{
    const RecordingCommand command(QStringLiteral("x"), 1);
    QCOMPARE(command.id(), 0);
    QCOMPARE(command.mergedCount(), 0);
    QCOMPARE(command.value(), QVariant(1));
}

void tst_UndoMergeableCommand::theSameThingTakesTheNewValue()
{
    RecordingCommand command(QStringLiteral("x"), 1);
    const RecordingCommand later(QStringLiteral("x"), 2);
    LogCapture log;
    QVERIFY(command.mergeWith(&later));
    QCOMPARE(command.value(), QVariant(2));
    QCOMPARE(command.mergedCount(), 0);
    QVERIFY(log.contains(QStringLiteral("mergeWith 351 %1 0 %2 0").arg(address(command), address(later))));
    QVERIFY(log.contains(QStringLiteral("mergeWith 357 childCount 0")));
    QVERIFY(log.contains(QStringLiteral("mergeWith 376 merged(2)")));
}

void tst_UndoMergeableCommand::anotherThingIsClonedIntoTheList()
{
    RecordingCommand command(QStringLiteral("x"), 1);
    const RecordingCommand later(QStringLiteral("y"), 2);
    LogCapture log;
    QVERIFY(command.mergeWith(&later));
    QCOMPARE(command.value(), QVariant(1));
    QCOMPARE(command.mergedCount(), 1);
    QVERIFY(log.contains(QStringLiteral("mergeWith 380 append newCommand to list")));
}

void tst_UndoMergeableCommand::aClonedThingTakesItsNewValueFirst()
{
    RecordingCommand command(QStringLiteral("x"), 1);
    QVERIFY(command.mergeWith(std::make_unique<RecordingCommand>(QStringLiteral("y"), 2).get()));
    LogCapture log;
    QVERIFY(command.mergeWith(std::make_unique<RecordingCommand>(QStringLiteral("y"), 3).get()));
    QVERIFY(hasNumber(log, 362));
    QVERIFY(log.contains(QStringLiteral("mergeWith 369 merged!")));
    QCOMPARE(command.mergedCount(), 1);
    // Another type is not asked.
    QVERIFY(command.mergeWith(std::make_unique<RecordingCommand>(QStringLiteral("y"), 4, 2).get()));
    QCOMPARE(command.mergedCount(), 2);
    command.redo();
    QCOMPARE(RecordingCommand::journal(), (QStringList{QStringLiteral("redo x=1"), QStringLiteral("redo y=3"),
                                                       QStringLiteral("redo y=4")}));
}

void tst_UndoMergeableCommand::undoIsNewestFirstAndRedoOldestFirst()
{
    RecordingCommand command(QStringLiteral("x"), 1);
    LogCapture log;
    command.undo();
    command.redo();
    QVERIFY(log.lines().isEmpty());
    QVERIFY(command.mergeWith(std::make_unique<RecordingCommand>(QStringLiteral("y"), 2).get()));
    QVERIFY(command.mergeWith(std::make_unique<RecordingCommand>(QStringLiteral("z"), 3).get()));
    RecordingCommand::journal().clear();
    command.undo();
    command.redo();
    QCOMPARE(
        RecordingCommand::journal(),
        (QStringList{QStringLiteral("undo z=3"), QStringLiteral("undo y=2"), QStringLiteral("undo x=1"),
                     QStringLiteral("redo x=1"), QStringLiteral("redo y=2"), QStringLiteral("redo z=3")}));
    QVERIFY(log.contains(QStringLiteral("UndoMergeableCommand::undo 328 do undo before 2")));
    QVERIFY(log.contains(QStringLiteral("UndoMergeableCommand::redo 339 do redo after 2")));
}

void tst_UndoMergeableCommand::anUnmergeableCommandRefuses()
{
    RecordingCommand command(QStringLiteral("x"), 1);
    command.setMergeable(false);
    const RecordingCommand same(QStringLiteral("x"), 2);
    LogCapture log;
    QVERIFY(!command.mergeWith(&same));
    QCOMPARE(command.value(), QVariant(1));
    QVERIFY(log.contains(QStringLiteral("mergeWith 388 unmerged")));
    QVERIFY(!hasNumber(log, 357));
}

void tst_UndoMergeableCommand::refusesWhileTheHistoryForbidsMerging()
{
    m_undoRedo->beginSequence(QStringLiteral("s"));
    QVERIFY(!m_undoRedo->mergeable());
    RecordingCommand command(QStringLiteral("x"), 1);
    const RecordingCommand same(QStringLiteral("x"), 2);
    QVERIFY(!command.mergeWith(&same));
    m_undoRedo->endSequence();
}

void tst_UndoMergeableCommand::refusesWithoutAHistory()
{
    m_undoRedo.reset();
    RecordingCommand command(QStringLiteral("x"), 1);
    const RecordingCommand same(QStringLiteral("x"), 2);
    QVERIFY(!command.mergeWith(&same));
}

void tst_UndoMergeableCommand::refusesACommandOfAnotherKind()
{
    RecordingCommand command(QStringLiteral("x"), 1);
    QVERIFY(command.mergeWith(std::make_unique<RecordingCommand>(QStringLiteral("y"), 2).get()));
    const PlainCommand plain(QStringLiteral("p"));
    LogCapture log;
    QVERIFY(!command.mergeWith(&plain));
    QCOMPARE(command.mergedCount(), 1);
    QVERIFY(!hasNumber(log, 362)); // a clone with another id is not looked at
}

void tst_UndoMergeableCommand::anUnmergeableCloneBreaksTheSearch()
{
    RecordingCommand command(QStringLiteral("x"), 1);
    RecordingCommand *clone = append(&command, RecordingCommand(QStringLiteral("y"), 2));
    QVERIFY(clone);
    clone->setMergeable(false);
    LogCapture log;
    const RecordingCommand same(QStringLiteral("x"), 3);
    QVERIFY(!command.mergeWith(&same));
    QVERIFY(log.contains(QStringLiteral("mergeWith 362 %1 0").arg(address(*clone))));
    QVERIFY(log.contains(QStringLiteral("mergeWith 364 break unmergeable")));
    QCOMPARE(command.value(), QVariant(1));
}

void tst_UndoMergeableCommand::theSearchBeginsAtTheNewestClone()
{
    RecordingCommand command(QStringLiteral("x"), 1);
    RecordingCommand *older = append(&command, RecordingCommand(QStringLiteral("y"), 2));
    RecordingCommand *newer = append(&command, RecordingCommand(QStringLiteral("z"), 3));
    QVERIFY(older != nullptr && newer != nullptr);
    older->setMergeable(false);
    QVERIFY(command.mergeWith(std::make_unique<RecordingCommand>(QStringLiteral("z"), 4).get()));
    QCOMPARE(newer->value(), QVariant(4));
    QVERIFY(!command.mergeWith(std::make_unique<RecordingCommand>(QStringLiteral("y"), 5).get()));
    QCOMPARE(older->value(), QVariant(2));
}

void tst_UndoMergeableCommand::aCloneTakesNoClones()
{
    RecordingCommand command(QStringLiteral("x"), 1);
    RecordingCommand *merged = append(&command, RecordingCommand(QStringLiteral("y"), 2));
    QVERIFY(merged);
    const RecordingCommand other(QStringLiteral("z"), 3);
    const RecordingCommand same(QStringLiteral("y"), 4);
    LogCapture log;
    QVERIFY(!merged->mergeWith(&other));
    QVERIFY(merged->mergeWith(&same));
    QVERIFY(!hasNumber(log, 351));
    QVERIFY(!hasNumber(log, 357));
    QCOMPARE(merged->mergedCount(), 0);
    QCOMPARE(merged->value(), QVariant(4));
    merged->setMergeable(false);
    QVERIFY(!merged->mergeWith(&same));
    QVERIFY(!hasNumber(log, 388)); // only the command on the stack says so
}

QTEST_MAIN(tst_UndoMergeableCommand)
#include "tst_UndoMergeableCommand.moc"
