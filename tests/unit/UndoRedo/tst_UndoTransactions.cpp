#include "LogCapture.h"
#include "UndoRedoTest.h"

#include <QTest>

#include <utility>

/// Single transactions, and what is folded into the step before.
class tst_UndoTransactions : public UndoRedoTest
{
    Q_OBJECT

private Q_SLOTS:
    void transactionsOfOneNameMergeByTime_data();
    void transactionsOfOneNameMergeByTime();
    void aSteadyDragIsOneStep();
    void anotherNameIsAnotherStep();
    void theNamelessTransactionHasTheEmptyName();
    void theVeryFirstTransactionMayMergeWhenItHasNoName();
    void aSequenceIsATransactionToGoOnWith();
    void anotherNameWithoutItsEndKeepsTheNextApart();
    void setUnmergeableKeepsTheNextTransactionApart();
    void theFirstCommandIsPushedAndTheNextMerges();
    void aFailedMergeIsTakenBackAndPushed();
    void theLastCommandOfASequenceTakesMerges();
    void nothingMergesIntoThePlainCommand();
    void commandsOutsideATransactionMergeOnTheStack();
};

void tst_UndoTransactions::transactionsOfOneNameMergeByTime_data()
{
    QTest::addColumn<QTime>("first");
    QTest::addColumn<QTime>("second");
    QTest::addColumn<bool>("merges");
    QTest::newRow("at once") << QTime(12, 0) << QTime(12, 0) << true;
    QTest::newRow("999 ms") << QTime(12, 0, 0, 0) << QTime(12, 0, 0, 999) << true;
    QTest::newRow("1000 ms") << QTime(12, 0, 0, 0) << QTime(12, 0, 1, 0) << false;
    QTest::newRow("an hour") << QTime(12, 0) << QTime(13, 0) << false;
    QTest::newRow("999 ms over midnight") << QTime(23, 59, 59, 500) << QTime(0, 0, 0, 499) << true;
    QTest::newRow("1000 ms over midnight") << QTime(23, 59, 59, 500) << QTime(0, 0, 0, 500) << false;
    QTest::newRow("the clock was set back") << QTime(12, 0) << QTime(11, 0) << false;
}

void tst_UndoTransactions::transactionsOfOneNameMergeByTime()
{
    QFETCH(QTime, first);
    QFETCH(QTime, second);
    QFETCH(bool, merges);
    single(QStringLiteral("b"), 0);
    m_now = first;
    single(QStringLiteral("a"), 1);
    m_now = second;
    LogCapture log;
    single(QStringLiteral("a"), 2);
    QCOMPARE(log.contains(line("beginSingle", 245, QStringLiteral("may be merged"))), merges);

    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(), QStringList{QStringLiteral("undo a=2")});
    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(),
             QStringList{merges ? QStringLiteral("undo b=0") : QStringLiteral("undo a=1")});
}

void tst_UndoTransactions::aSteadyDragIsOneStep()
{
    single(QStringLiteral("drag"), 0);
    for (int i = 1; i <= 10; ++i) {
        m_now = m_now.addMSecs(900);
        single(QStringLiteral("drag"), i);
    }
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoTransactions::anotherNameIsAnotherStep()
{
    single(QStringLiteral("a"), 1);
    single(QStringLiteral("b"), 2);
    single(QStringLiteral("a"), 3);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(m_undoRedo->canUndo());
        m_undoRedo->undo();
    }
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoTransactions::theNamelessTransactionHasTheEmptyName()
{
    single(QStringLiteral("a"), 1);
    m_undoRedo->beginSingle();
    m_undoRedo->endSingle();
    QCOMPARE(m_undoRedo->lastTransactionName(), QString());
    m_undoRedo->beginSingle();
    QVERIFY(m_undoRedo->mergeable());
    m_undoRedo->endSingle();
}

void tst_UndoTransactions::theVeryFirstTransactionMayMergeWhenItHasNoName()
{
    // There was no transaction before: its name is empty too, and no time lies between.
    m_undoRedo->addCommand(std::make_unique<RecordingCommand>(QStringLiteral("x"), 1));
    LogCapture log;
    m_undoRedo->beginSingle();
    QVERIFY(log.contains(line("beginSingle", 245, QStringLiteral("may be merged"))));
    m_undoRedo->addCommand(std::make_unique<RecordingCommand>(QStringLiteral("x"), 2));
    m_undoRedo->endSingle();
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoTransactions::aSequenceIsATransactionToGoOnWith()
{
    single(QStringLiteral("a"), 1);
    m_now = m_now.addSecs(5);
    m_undoRedo->beginSequence(QStringLiteral("a"));
    m_undoRedo->addCommand(std::make_unique<RecordingCommand>(QStringLiteral("x"), 2));
    m_undoRedo->endSequence();
    m_now = m_now.addMSecs(999); // since the sequence began
    single(QStringLiteral("a"), 3);
    m_undoRedo->undo();
    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(), QStringList{QStringLiteral("undo a=1")});
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoTransactions::anotherNameWithoutItsEndKeepsTheNextApart()
{
    single(QStringLiteral("a"), 1);
    m_undoRedo->beginSingle(QStringLiteral("b"));
    m_undoRedo->beginSingle(QStringLiteral("a"));
    QVERIFY(!m_undoRedo->mergeable());
    m_undoRedo->endSingle();
    m_undoRedo->beginSingle(QStringLiteral("a"));
    QVERIFY(m_undoRedo->mergeable());
    m_undoRedo->endSingle();
}

void tst_UndoTransactions::setUnmergeableKeepsTheNextTransactionApart()
{
    single(QStringLiteral("a"), 1);
    m_undoRedo->setUnmergeable();
    single(QStringLiteral("a"), 2);
    m_undoRedo->undo();
    QVERIFY(m_undoRedo->canUndo());
    m_undoRedo->redo();
    // The end of the transaction lifted it.
    single(QStringLiteral("a"), 3);
    m_undoRedo->undo();
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoTransactions::theFirstCommandIsPushedAndTheNextMerges()
{
    m_undoRedo->beginSingle(QStringLiteral("a"));
    QVERIFY(!m_undoRedo->mergeable());
    m_undoRedo->addCommand(std::make_unique<RecordingCommand>(QStringLiteral("x"), 1));
    QVERIFY(m_undoRedo->mergeable());
    m_undoRedo->addCommand(std::make_unique<RecordingCommand>(QStringLiteral("x"), 2));
    m_undoRedo->addCommand(std::make_unique<RecordingCommand>(QStringLiteral("y"), 3));
    m_undoRedo->endSingle();
    QVERIFY(m_undoRedo->mergeable());
    QCOMPARE(RecordingCommand::journal(), (QStringList{QStringLiteral("redo x=1"), QStringLiteral("redo x=2"),
                                                       QStringLiteral("redo y=3")}));
    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(),
             (QStringList{QStringLiteral("undo y=3"), QStringLiteral("undo x=2")}));
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoTransactions::aFailedMergeIsTakenBackAndPushed()
{
    auto stubborn = std::make_unique<RecordingCommand>(QStringLiteral("x"), 1);
    stubborn->setMergeable(false);
    m_undoRedo->beginSingle(QStringLiteral("a"));
    m_undoRedo->addCommand(std::move(stubborn));
    m_host.notes.clear();
    RecordingCommand::journal().clear();
    m_undoRedo->addCommand(std::make_unique<RecordingCommand>(QStringLiteral("x"), 2));
    m_undoRedo->endSingle();
    QCOMPARE(RecordingCommand::journal(), (QStringList{QStringLiteral("redo x=2"), QStringLiteral("undo x=2"),
                                                       QStringLiteral("redo x=2")}));
    QCOMPARE(m_host.notes, QStringList{QString()});
    m_undoRedo->undo();
    QVERIFY(m_undoRedo->canUndo());
}

void tst_UndoTransactions::theLastCommandOfASequenceTakesMerges()
{
    m_undoRedo->beginSequence(QStringLiteral("a"));
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("p")));
    m_undoRedo->addCommand(std::make_unique<RecordingCommand>(QStringLiteral("x"), 1));
    m_undoRedo->endSequence();
    single(QStringLiteral("a"), 2);
    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(),
             (QStringList{QStringLiteral("undo a=2"), QStringLiteral("undo x=1"), QStringLiteral("undo p")}));
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoTransactions::nothingMergesIntoThePlainCommand()
{
    m_undoRedo->beginSingle(QStringLiteral("a"));
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("p")));
    m_undoRedo->addCommand(std::make_unique<RecordingCommand>(QStringLiteral("x"), 1));
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("q")));
    m_undoRedo->endSingle();
    for (int i = 0; i < 3; ++i) {
        QVERIFY(m_undoRedo->canUndo());
        m_undoRedo->undo();
    }
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoTransactions::commandsOutsideATransactionMergeOnTheStack()
{
    // The stack asks its last command by itself when the ids are equal.
    m_undoRedo->addCommand(std::make_unique<RecordingCommand>(QStringLiteral("x"), 1));
    m_undoRedo->addCommand(std::make_unique<RecordingCommand>(QStringLiteral("x"), 2));
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
}

QTEST_MAIN(tst_UndoTransactions)
#include "tst_UndoTransactions.moc"
