#include "LogCapture.h"
#include "UndoRedoTest.h"

#include <QRegularExpression>
#include <QTest>

/// Sequences of commands that are one step.
class tst_UndoSequences : public UndoRedoTest
{
    Q_OBJECT

private Q_SLOTS:
    void aSequenceIsOneStep();
    void sequencesNest();
    void anEmptySequenceLeavesNothingToUndoOrRedo();
    void anEmptySequenceIsUndoneForTheMarker();
    void anEmptySequenceInsideAnotherIsACommandOfIt();
    void anEmptySequenceClearsTheRedoSide();
    void anEmptySequenceOnAFullStackStays();
    void endingWhatNeverBeganIsHarmless();
    void aTransactionInsideAnotherIsLogged();
};

void tst_UndoSequences::aSequenceIsOneStep()
{
    m_undoRedo->beginSequence(QStringLiteral("s"));
    QVERIFY(m_undoRedo->inTransaction());
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("b")));
    m_undoRedo->endSequence();
    QVERIFY(!m_undoRedo->inTransaction());
    QCOMPARE(m_undoRedo->lastTransactionName(), QStringLiteral("s"));
    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(), (QStringList{QStringLiteral("undo b"), QStringLiteral("undo a")}));
    QVERIFY(!m_undoRedo->canUndo());
    QVERIFY(m_undoRedo->canRedo());
}

void tst_UndoSequences::sequencesNest()
{
    m_undoRedo->beginSequence(QStringLiteral("outer"));
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
    LogCapture log;
    m_undoRedo->beginSequence(QStringLiteral("inner"));
    QVERIFY(log.contains(line("beginSequence", 182, QStringLiteral("Assertion failed: !m_inTransaction"))));
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("b")));
    m_undoRedo->endSequence();
    QVERIFY(m_undoRedo->inTransaction());
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("c")));
    QVERIFY(!log.contains(QStringLiteral("childCount")));
    m_undoRedo->endSequence();
    const QStringList counts = log.lines().filter(QStringLiteral(" UndoRedo::endSequence 211 0x"));
    QCOMPARE(counts.size(), 1);
    QVERIFY2(counts.constFirst().endsWith(QStringLiteral(" childCount 3")), qPrintable(counts.constFirst()));
    QVERIFY(!m_undoRedo->inTransaction());
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoSequences::anEmptySequenceLeavesNothingToUndoOrRedo()
{
    m_undoRedo->beginSequence(QStringLiteral("s"));
    m_undoRedo->endSequence();
    QVERIFY(!m_undoRedo->canUndo());
    QVERIFY(!m_undoRedo->canRedo());
    QVERIFY(!m_host.modified);
    QCOMPARE(m_host.notes, QStringList{QString()});

    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
    m_undoRedo->beginSequence(QStringLiteral("s"));
    m_undoRedo->endSequence();
    QVERIFY(m_undoRedo->canUndo());
    QVERIFY(!m_undoRedo->canRedo());
    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(), QStringList{QStringLiteral("undo a")});
}

void tst_UndoSequences::anEmptySequenceIsUndoneForTheMarker()
{
    LogCapture log;
    m_undoRedo->beginSequence(QStringLiteral("s"));
    m_undoRedo->endSequence();
    QStringList lines = log.lines();
    lines.replaceInStrings(QRegularExpression(QStringLiteral("0x[0-9a-f]+")), QStringLiteral("address"));
    QCOMPARE(lines, (QStringList{line("beginSequence", 181, QStringLiteral("\"s\" 0")),
                                 line("endSequence", 199, QStringLiteral("\"s\" 1")),
                                 line("onIndexChanged", 105, QStringLiteral("1")),
                                 line("endSequence", 211, QStringLiteral("address childCount 0")),
                                 line("onIndexChanged", 105, QStringLiteral("0")),
                                 line("addCommand", 111, QStringLiteral("address false false 0")),
                                 line("onIndexChanged", 105, QStringLiteral("1")),
                                 line("onIndexChanged", 105, QStringLiteral("0"))}));
}

void tst_UndoSequences::anEmptySequenceInsideAnotherIsACommandOfIt()
{
    m_undoRedo->beginSequence(QStringLiteral("outer"));
    m_undoRedo->beginSequence(QStringLiteral("inner"));
    m_undoRedo->endSequence();
    m_undoRedo->endSequence();
    QVERIFY(m_undoRedo->canUndo()); // the outer one holds something, if only the inner one
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
    QVERIFY(m_undoRedo->canRedo());
}

void tst_UndoSequences::anEmptySequenceClearsTheRedoSide()
{
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
    m_undoRedo->undo();
    QVERIFY(m_undoRedo->canRedo());
    m_undoRedo->beginSequence(QStringLiteral("s"));
    m_undoRedo->endSequence();
    QVERIFY(!m_undoRedo->canRedo());
}

void tst_UndoSequences::anEmptySequenceOnAFullStackStays()
{
    for (int i = 0; i < 10; ++i) {
        m_undoRedo->addCommand(std::make_unique<PlainCommand>(QString::number(i)));
    }
    m_undoRedo->beginSequence(QStringLiteral("s"));
    m_undoRedo->endSequence();
    // The oldest step fell off, so the place where the sequence began is behind the last step.
    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QVERIFY(RecordingCommand::journal().isEmpty());
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(), QStringList{QStringLiteral("undo 9")});
}

void tst_UndoSequences::endingWhatNeverBeganIsHarmless()
{
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
    m_undoRedo->endSequence();
    m_undoRedo->endSingle();
    QVERIFY(m_undoRedo->canUndo());
    QVERIFY(!m_undoRedo->inTransaction());
}

void tst_UndoSequences::aTransactionInsideAnotherIsLogged()
{
    m_undoRedo->beginSequence(QStringLiteral("s"));
    LogCapture log;
    m_undoRedo->beginSingle(QStringLiteral("a"));
    QVERIFY(log.contains(line("beginSingle", 237, QStringLiteral("Assertion failed: !m_inTransaction"))));
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("p")));
    m_undoRedo->endSingle();
    QVERIFY(!m_undoRedo->inTransaction());
    m_undoRedo->endSequence();
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
}

QTEST_MAIN(tst_UndoSequences)
#include "tst_UndoSequences.moc"
