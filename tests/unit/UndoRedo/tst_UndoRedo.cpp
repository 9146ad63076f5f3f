#include "LogCapture.h"
#include "UndoRedo/UnredoableCommand.h"
#include "UndoRedoTest.h"

#include <QAction>
#include <QDir>
#include <QKeySequence>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

namespace {

/// Puts the context in front of every text.
class ContextTranslator final : public QTranslator
{
public:
    [[nodiscard]] QString translate(const char *context, const char *source, const char * /*disambiguation*/,
                                    int /*n*/) const override
    {
        return QLatin1String(context) + QLatin1Char('|') + QLatin1String(source);
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
};

} // namespace

/// The undo history as an object, and its steps apart from transactions.
class tst_UndoRedo : public UndoRedoTest
{
    Q_OBJECT

private Q_SLOTS:
    void constructionIsLoggedAsAWarning();
    void theActionsAreTranslatedAndHaveTheKeysOfTheSystem();
    void theInterfaceStandsInItsOrder();
    void theInvokablesWorkByName();
    void theInstanceIsPublishedAndGoesWithTheObject();
    void aSecondObjectLeavesTheInstanceAlone();
    void theMarkerCannotBeRedone();
    void redoPassesTheMarkerWithoutAChange();
    void onlyTheLastTenStepsAreKept();
    void modifiedFollowsTheSavedPosition();
    void mergingIntoTheSavedStepDoesNotModify();
    void clearForgetsEverything();
    void clearCountsAsSavedWithNothingToForget();
    void worksWithoutAHost();
    void signalsForwardTheState();
    void theTemporaryDirectoryIsAvailable();
    void callsAreLoggedWithTheirNumbers();
};

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

void tst_UndoRedo::theActionsAreTranslatedAndHaveTheKeysOfTheSystem()
{
    ContextTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const UndoRedo undoRedo;
    const QList<QAction *> actions = undoRedo.findChildren<QAction *>();
    QCOMPARE(actions.size(), 2);
    QCOMPARE(actions.at(0)->text(), QStringLiteral("UndoRedo|&Undo"));
    QCOMPARE(actions.at(1)->text(), QStringLiteral("UndoRedo|&Redo"));
    QCOMPARE(actions.at(0)->shortcuts(), QKeySequence::keyBindings(QKeySequence::Undo));
    QCOMPARE(actions.at(1)->shortcuts(), QKeySequence::keyBindings(QKeySequence::Redo));
    QVERIFY(!actions.at(0)->shortcuts().isEmpty());
    QVERIFY(actions.at(0)->shortcuts() != actions.at(1)->shortcuts());
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
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
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

void tst_UndoRedo::theMarkerCannotBeRedone()
{
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("b")));
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
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
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
        m_undoRedo->addCommand(std::make_unique<PlainCommand>(QString::number(i)));
    }
    int steps = 0;
    while (m_undoRedo->canUndo()) {
        m_undoRedo->undo();
        ++steps;
    }
    QCOMPARE(steps, 10);
}

void tst_UndoRedo::modifiedFollowsTheSavedPosition()
{
    QVERIFY(!m_host.modified);
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
    QVERIFY(m_host.modified);
    m_undoRedo->markSaved();
    QVERIFY(!m_host.modified);
    m_undoRedo->undo();
    QVERIFY(m_host.modified);
    m_undoRedo->redo();
    QVERIFY(!m_host.modified);
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("b")));
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
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
    m_undoRedo->markSaved();
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("b")));
    m_undoRedo->undo();
    m_undoRedo->clear();
    QVERIFY(!m_undoRedo->canUndo());
    QVERIFY(!m_undoRedo->canRedo());
    QVERIFY(!m_host.modified);
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("c")));
    m_undoRedo->undo();
    QVERIFY(!m_host.modified); // the empty history is the saved position
}

void tst_UndoRedo::clearCountsAsSavedWithNothingToForget()
{
    m_host.modified = true; // by another than the history
    m_undoRedo->clear();
    QVERIFY(!m_host.modified);
}

void tst_UndoRedo::worksWithoutAHost()
{
    m_undoRedo->setHost(nullptr);
    m_undoRedo->beginSequence(QStringLiteral("s"));
    m_undoRedo->endSequence();
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
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
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
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
    m_undoRedo->addCommand(std::make_unique<PlainCommand>(QStringLiteral("a")));
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
