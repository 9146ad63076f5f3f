#include "LogCapture.h"
#include "RecordingCommand.h"
#include "RecordingHost.h"
#include "UndoRedo/UndoRedo.h"
#include "UndoRedo/UnredoableCommand.h"

#include <QDir>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>

#include <memory>

class tst_UndoRedo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void constructionIsLoggedAsAWarning();
    void theInterfaceStandsInItsOrder();
    void theInvokablesWorkByName();
    void theInstanceIsPublishedAndGoesWithTheObject();
    void aSecondObjectLeavesTheInstanceAlone();

    void transactionsOfOneNameMergeByTime_data();
    void transactionsOfOneNameMergeByTime();
    void aSteadyDragIsOneStep();
    void anotherNameIsAnotherStep();
    void theNamelessTransactionHasTheEmptyName();
    void theVeryFirstTransactionMayMergeWhenItHasNoName();
    void setUnmergeableKeepsTheNextTransactionApart();
    void theFirstCommandIsPushedAndTheNextMerges();
    void aFailedMergeIsTakenBackAndPushed();
    void theLastCommandOfASequenceTakesMerges();
    void nothingMergesIntoThePlainCommand();
    void commandsOutsideATransactionMergeOnTheStack();

    void aSequenceIsOneStep();
    void sequencesNest();
    void anEmptySequenceLeavesNothingToUndoOrRedo();
    void anEmptySequenceClearsTheRedoSide();
    void endingWhatNeverBeganIsHarmless();
    void aTransactionInsideAnotherIsLogged();
    void theMarkerCannotBeRedone();
    void redoPassesTheMarkerWithoutAChange();

    void onlyTheLastTenStepsAreKept();
    void anEmptySequenceOnAFullStackStays();
    void modifiedFollowsTheSavedPosition();
    void mergingIntoTheSavedStepDoesNotModify();
    void clearForgetsEverything();
    void worksWithoutAHost();
    void signalsForwardTheState();
    void theTemporaryDirectoryIsAvailable();
    void callsAreLoggedWithTheirNumbers();

private:
    void single(const QString &name, int value);
    [[nodiscard]] static QString line(const char *function, int number, const QString &rest);

    RecordingHost m_host;
    std::unique_ptr<UndoRedo> m_undoRedo;
    QTime m_now;
};

void tst_UndoRedo::init()
{
    m_host = RecordingHost();
    m_now = QTime(12, 0);
    m_undoRedo = std::make_unique<UndoRedo>(nullptr, &m_host);
    m_undoRedo->setClock([this] { return m_now; });
    UndoRedo::publish(m_undoRedo.get());
    RecordingCommand::journal().clear();
}

void tst_UndoRedo::cleanup()
{
    m_undoRedo.reset();
    RecordingCommand::deleteLeftovers();
}

void tst_UndoRedo::single(const QString &name, int value)
{
    m_undoRedo->beginSingle(name);
    m_undoRedo->addCommand(new RecordingCommand(name, value));
    m_undoRedo->endSingle();
}

QString tst_UndoRedo::line(const char *function, int number, const QString &rest)
{
    const QString start = QStringLiteral("..\\..\\tutorial\\cpp\\UndoRedo.cpp UndoRedo::%1 %2")
                              .arg(QLatin1String(function))
                              .arg(number);
    return rest.isEmpty() ? start : start + QLatin1Char(' ') + rest;
}

void tst_UndoRedo::constructionIsLoggedAsAWarning()
{
    QCoreApplication::setApplicationName(QStringLiteral("Tutorial"));
    LogCapture log;
    const UndoRedo undoRedo;
    QCOMPARE(log.warnings().size(), 1);
    const QString warning = log.warnings().constFirst();
    QVERIFY2(
        warning.startsWith(line("UndoRedo", 34, QStringLiteral("\"Tutorial\" \"%1").arg(QDir::tempPath()))),
        qPrintable(warning));
    QVERIFY2(warning.endsWith(QStringLiteral("\"%1\" \"\"").arg(QDir::tempPath())), qPrintable(warning));
}

void tst_UndoRedo::theInterfaceStandsInItsOrder()
{
    const QMetaObject &meta = UndoRedo::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    }
    const QStringList expected{QStringLiteral("canRedoChanged(bool)"),
                               QStringLiteral("canUndoChanged(bool)"),
                               QStringLiteral("onCanRedoChanged(bool)"),
                               QStringLiteral("onCanUndoChanged(bool)"),
                               QStringLiteral("onIndexChanged(int)"),
                               QStringLiteral("inTransaction()"),
                               QStringLiteral("beginSequence(QString)"),
                               QStringLiteral("endSequence()"),
                               QStringLiteral("beginSingle(QString)"),
                               QStringLiteral("beginSingle()"),
                               QStringLiteral("endSingle()"),
                               QStringLiteral("setUnmergeable()"),
                               QStringLiteral("undo()"),
                               QStringLiteral("redo()"),
                               QStringLiteral("clear()"),
                               QStringLiteral("undoAndMakeUnredoable()"),
                               QStringLiteral("closeUndoView()"),
                               QStringLiteral("lastTransactionName()"),
                               QStringLiteral("isTemporaryDirAvailable()")};
    QCOMPARE(methods, expected);

    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 2);
    const QMetaProperty canUndo = meta.property(meta.propertyOffset());
    const QMetaProperty canRedo = meta.property(meta.propertyOffset() + 1);
    QCOMPARE(canUndo.name(), "canUndo");
    QCOMPARE(canRedo.name(), "canRedo");
    QVERIFY(!canUndo.isWritable() && !canRedo.isWritable());
    QCOMPARE(canUndo.notifySignal().name(), QByteArray("canUndoChanged"));
    QCOMPARE(canRedo.notifySignal().name(), QByteArray("canRedoChanged"));
}

void tst_UndoRedo::theInvokablesWorkByName()
{
    QObject *object = m_undoRedo.get();
    bool inTransaction = false;
    QVERIFY(QMetaObject::invokeMethod(object, "beginSingle", Q_ARG(QString, QStringLiteral("move"))));
    QVERIFY(QMetaObject::invokeMethod(object, "inTransaction", Q_RETURN_ARG(bool, inTransaction)));
    QVERIFY(inTransaction);
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    QVERIFY(QMetaObject::invokeMethod(object, "endSingle"));
    QString last;
    QVERIFY(QMetaObject::invokeMethod(object, "lastTransactionName", Q_RETURN_ARG(QString, last)));
    QCOMPARE(last, QStringLiteral("move"));
    QVERIFY(object->property("canUndo").toBool());
    QVERIFY(!object->property("canRedo").toBool());
    QVERIFY(QMetaObject::invokeMethod(object, "undo"));
    QVERIFY(!object->property("canUndo").toBool());
    QVERIFY(object->property("canRedo").toBool());
    QVERIFY(QMetaObject::invokeMethod(object, "redo"));
    QVERIFY(QMetaObject::invokeMethod(object, "closeUndoView"));
    QVERIFY(object->property("canUndo").toBool());
}

void tst_UndoRedo::theInstanceIsPublishedAndGoesWithTheObject()
{
    QCOMPARE(UndoRedo::instance(), m_undoRedo.get());
    m_undoRedo.reset();
    QCOMPARE(UndoRedo::instance(), nullptr);
}

void tst_UndoRedo::aSecondObjectLeavesTheInstanceAlone()
{
    {
        const UndoRedo other;
    }
    QCOMPARE(UndoRedo::instance(), m_undoRedo.get());
}

void tst_UndoRedo::transactionsOfOneNameMergeByTime_data()
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

void tst_UndoRedo::transactionsOfOneNameMergeByTime()
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

void tst_UndoRedo::aSteadyDragIsOneStep()
{
    single(QStringLiteral("drag"), 0);
    for (int i = 1; i <= 10; ++i) {
        m_now = m_now.addMSecs(900);
        single(QStringLiteral("drag"), i);
    }
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoRedo::anotherNameIsAnotherStep()
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

void tst_UndoRedo::theNamelessTransactionHasTheEmptyName()
{
    single(QStringLiteral("a"), 1);
    m_undoRedo->beginSingle();
    m_undoRedo->endSingle();
    QCOMPARE(m_undoRedo->lastTransactionName(), QString());
    m_undoRedo->beginSingle();
    QVERIFY(m_undoRedo->mergeable());
    m_undoRedo->endSingle();
}

void tst_UndoRedo::theVeryFirstTransactionMayMergeWhenItHasNoName()
{
    // There was no transaction before: its name is empty too, and no time lies between.
    m_undoRedo->addCommand(new RecordingCommand(QStringLiteral("x"), 1));
    LogCapture log;
    m_undoRedo->beginSingle();
    QVERIFY(log.contains(line("beginSingle", 245, QStringLiteral("may be merged"))));
    m_undoRedo->addCommand(new RecordingCommand(QStringLiteral("x"), 2));
    m_undoRedo->endSingle();
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoRedo::setUnmergeableKeepsTheNextTransactionApart()
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

void tst_UndoRedo::theFirstCommandIsPushedAndTheNextMerges()
{
    m_undoRedo->beginSingle(QStringLiteral("a"));
    QVERIFY(!m_undoRedo->mergeable());
    m_undoRedo->addCommand(new RecordingCommand(QStringLiteral("x"), 1));
    QVERIFY(m_undoRedo->mergeable());
    m_undoRedo->addCommand(new RecordingCommand(QStringLiteral("x"), 2));
    m_undoRedo->addCommand(new RecordingCommand(QStringLiteral("y"), 3));
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

void tst_UndoRedo::aFailedMergeIsTakenBackAndPushed()
{
    auto *stubborn = new RecordingCommand(QStringLiteral("x"), 1);
    stubborn->setMergeable(false);
    m_undoRedo->beginSingle(QStringLiteral("a"));
    m_undoRedo->addCommand(stubborn);
    m_host.notes.clear();
    RecordingCommand::journal().clear();
    m_undoRedo->addCommand(new RecordingCommand(QStringLiteral("x"), 2));
    m_undoRedo->endSingle();
    QCOMPARE(RecordingCommand::journal(), (QStringList{QStringLiteral("redo x=2"), QStringLiteral("undo x=2"),
                                                       QStringLiteral("redo x=2")}));
    QCOMPARE(m_host.notes, QStringList{QString()});
    m_undoRedo->undo();
    QVERIFY(m_undoRedo->canUndo());
}

void tst_UndoRedo::theLastCommandOfASequenceTakesMerges()
{
    m_undoRedo->beginSequence(QStringLiteral("a"));
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("p")));
    m_undoRedo->addCommand(new RecordingCommand(QStringLiteral("x"), 1));
    m_undoRedo->endSequence();
    single(QStringLiteral("a"), 2);
    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(),
             (QStringList{QStringLiteral("undo a=2"), QStringLiteral("undo x=1"), QStringLiteral("undo p")}));
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoRedo::nothingMergesIntoThePlainCommand()
{
    m_undoRedo->beginSingle(QStringLiteral("a"));
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("p")));
    m_undoRedo->addCommand(new RecordingCommand(QStringLiteral("x"), 1));
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("q")));
    m_undoRedo->endSingle();
    for (int i = 0; i < 3; ++i) {
        QVERIFY(m_undoRedo->canUndo());
        m_undoRedo->undo();
    }
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoRedo::commandsOutsideATransactionMergeOnTheStack()
{
    // The stack asks its last command by itself when the ids are equal.
    m_undoRedo->addCommand(new RecordingCommand(QStringLiteral("x"), 1));
    m_undoRedo->addCommand(new RecordingCommand(QStringLiteral("x"), 2));
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoRedo::aSequenceIsOneStep()
{
    m_undoRedo->beginSequence(QStringLiteral("s"));
    QVERIFY(m_undoRedo->inTransaction());
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("b")));
    m_undoRedo->endSequence();
    QVERIFY(!m_undoRedo->inTransaction());
    QCOMPARE(m_undoRedo->lastTransactionName(), QStringLiteral("s"));
    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(), (QStringList{QStringLiteral("undo b"), QStringLiteral("undo a")}));
    QVERIFY(!m_undoRedo->canUndo());
    QVERIFY(m_undoRedo->canRedo());
}

void tst_UndoRedo::sequencesNest()
{
    m_undoRedo->beginSequence(QStringLiteral("outer"));
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    LogCapture log;
    m_undoRedo->beginSequence(QStringLiteral("inner"));
    QVERIFY(log.contains(line("beginSequence", 182, QStringLiteral("Assertion failed: !m_inTransaction"))));
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("b")));
    m_undoRedo->endSequence();
    QVERIFY(m_undoRedo->inTransaction());
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("c")));
    QVERIFY(!log.contains(QStringLiteral("childCount")));
    m_undoRedo->endSequence();
    const QStringList counts = log.lines().filter(QStringLiteral(" UndoRedo::endSequence 211 0x"));
    QCOMPARE(counts.size(), 1);
    QVERIFY2(counts.constFirst().endsWith(QStringLiteral(" childCount 3")), qPrintable(counts.constFirst()));
    QVERIFY(!m_undoRedo->inTransaction());
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoRedo::anEmptySequenceLeavesNothingToUndoOrRedo()
{
    m_undoRedo->beginSequence(QStringLiteral("s"));
    m_undoRedo->endSequence();
    QVERIFY(!m_undoRedo->canUndo());
    QVERIFY(!m_undoRedo->canRedo());
    QVERIFY(!m_host.modified);
    QCOMPARE(m_host.notes, QStringList{QString()});

    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    m_undoRedo->beginSequence(QStringLiteral("s"));
    m_undoRedo->endSequence();
    QVERIFY(m_undoRedo->canUndo());
    QVERIFY(!m_undoRedo->canRedo());
    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(), QStringList{QStringLiteral("undo a")});
}

void tst_UndoRedo::anEmptySequenceClearsTheRedoSide()
{
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    m_undoRedo->undo();
    QVERIFY(m_undoRedo->canRedo());
    m_undoRedo->beginSequence(QStringLiteral("s"));
    m_undoRedo->endSequence();
    QVERIFY(!m_undoRedo->canRedo());
}

void tst_UndoRedo::endingWhatNeverBeganIsHarmless()
{
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    m_undoRedo->endSequence();
    m_undoRedo->endSingle();
    QVERIFY(m_undoRedo->canUndo());
    QVERIFY(!m_undoRedo->inTransaction());
}

void tst_UndoRedo::aTransactionInsideAnotherIsLogged()
{
    m_undoRedo->beginSequence(QStringLiteral("s"));
    LogCapture log;
    m_undoRedo->beginSingle(QStringLiteral("a"));
    QVERIFY(log.contains(line("beginSingle", 237, QStringLiteral("Assertion failed: !m_inTransaction"))));
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("p")));
    m_undoRedo->endSingle();
    QVERIFY(!m_undoRedo->inTransaction());
    m_undoRedo->endSequence();
    m_undoRedo->undo();
    QVERIFY(!m_undoRedo->canUndo());
}

void tst_UndoRedo::theMarkerCannotBeRedone()
{
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("b")));
    QSignalSpy canRedoChanged(m_undoRedo.get(), &UndoRedo::canRedoChanged);
    m_undoRedo->undoAndMakeUnredoable();
    QVERIFY(m_undoRedo->canUndo());
    QVERIFY(!m_undoRedo->canRedo());
    QCOMPARE(canRedoChanged.last().first().toBool(), false);
    QCOMPARE(m_host.notes, QStringList{QString()});
    RecordingCommand::journal().clear();
    m_undoRedo->undo();
    QCOMPARE(RecordingCommand::journal(), QStringList{QStringLiteral("undo a")});
    QVERIFY(m_undoRedo->canRedo());
    m_undoRedo->redo();
    QVERIFY(!m_undoRedo->canRedo());
}

void tst_UndoRedo::redoPassesTheMarkerWithoutAChange()
{
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    m_undoRedo->undoAndMakeUnredoable();
    RecordingCommand::journal().clear();
    m_undoRedo->redo();
    QVERIFY(RecordingCommand::journal().isEmpty());
    QVERIFY(m_undoRedo->canUndo());
    QCOMPARE(UnredoableCommand().id(), 4);
    QCOMPARE(UnredoableCommand().text(), QStringLiteral("Unredoable"));
}

void tst_UndoRedo::onlyTheLastTenStepsAreKept()
{
    for (int i = 0; i < 12; ++i) {
        m_undoRedo->addCommand(new PlainCommand(QString::number(i)));
    }
    int steps = 0;
    while (m_undoRedo->canUndo()) {
        m_undoRedo->undo();
        ++steps;
    }
    QCOMPARE(steps, 10);
}

void tst_UndoRedo::anEmptySequenceOnAFullStackStays()
{
    for (int i = 0; i < 10; ++i) {
        m_undoRedo->addCommand(new PlainCommand(QString::number(i)));
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

void tst_UndoRedo::modifiedFollowsTheSavedPosition()
{
    QVERIFY(!m_host.modified);
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    QVERIFY(m_host.modified);
    m_undoRedo->markSaved();
    QVERIFY(!m_host.modified);
    m_undoRedo->undo();
    QVERIFY(m_host.modified);
    m_undoRedo->redo();
    QVERIFY(!m_host.modified);
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("b")));
    QVERIFY(m_host.modified);
}

void tst_UndoRedo::mergingIntoTheSavedStepDoesNotModify()
{
    single(QStringLiteral("a"), 1);
    m_undoRedo->markSaved();
    single(QStringLiteral("a"), 2);
    QVERIFY(!m_host.modified); // the position is the same
}

void tst_UndoRedo::clearForgetsEverything()
{
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    m_undoRedo->markSaved();
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("b")));
    m_undoRedo->undo();
    m_undoRedo->clear();
    QVERIFY(!m_undoRedo->canUndo());
    QVERIFY(!m_undoRedo->canRedo());
    QVERIFY(!m_host.modified);
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("c")));
    m_undoRedo->undo();
    QVERIFY(!m_host.modified); // the empty history is the saved position
}

void tst_UndoRedo::worksWithoutAHost()
{
    m_undoRedo->setHost(nullptr);
    m_undoRedo->beginSequence(QStringLiteral("s"));
    m_undoRedo->endSequence();
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    m_undoRedo->undoAndMakeUnredoable();
    m_undoRedo->markSaved();
    m_undoRedo->clear();
    QVERIFY(m_host.notes.isEmpty());
    QVERIFY(!m_host.modified);
}

void tst_UndoRedo::signalsForwardTheState()
{
    QSignalSpy canUndoChanged(m_undoRedo.get(), &UndoRedo::canUndoChanged);
    QSignalSpy canRedoChanged(m_undoRedo.get(), &UndoRedo::canRedoChanged);
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    QCOMPARE(canUndoChanged.last().first().toBool(), true);
    m_undoRedo->undo();
    QCOMPARE(canUndoChanged.last().first().toBool(), false);
    QCOMPARE(canRedoChanged.last().first().toBool(), true);
}

void tst_UndoRedo::theTemporaryDirectoryIsAvailable()
{
    LogCapture log;
    QVERIFY(m_undoRedo->isTemporaryDirAvailable());
    QVERIFY(log.contains(line("isTemporaryDirAvailable", 88, QStringLiteral("\"%1/").arg(QDir::tempPath()))));
}

void tst_UndoRedo::callsAreLoggedWithTheirNumbers()
{
    LogCapture log;
    m_undoRedo->beginSequence(QStringLiteral("s"));
    m_undoRedo->addCommand(new PlainCommand(QStringLiteral("a")));
    m_undoRedo->endSequence();
    m_undoRedo->beginSingle(QStringLiteral("t"));
    m_undoRedo->endSingle();
    m_undoRedo->undo();
    m_undoRedo->redo();
    QVERIFY(log.contains(line("beginSequence", 181, QStringLiteral("\"s\""))));
    QVERIFY(log.contains(line("addCommand", 111, QStringLiteral("0x"))));
    QVERIFY(log.contains(QStringLiteral("false true 1")));
    QVERIFY(log.contains(line("endSequence", 199, QStringLiteral("\"s\""))));
    QVERIFY(log.contains(line("onIndexChanged", 105, QStringLiteral("1"))));
    QVERIFY(log.contains(line("beginSingle", 236, QStringLiteral("\"t\""))));
    QVERIFY(log.contains(line("endSingle", 255, QStringLiteral("\"t\""))));
    QVERIFY(log.contains(line("undo", 145, QString())));
    QVERIFY(log.contains(line("redo", 151, QString())));
    QVERIFY(log.warnings().isEmpty());
}

QTEST_MAIN(tst_UndoRedo)
#include "tst_UndoRedo.moc"
