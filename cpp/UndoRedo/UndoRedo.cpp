#include "UndoRedo/UndoRedo.h"

#include "UndoRedo/UndoHost.h"
#include "UndoRedo/UndoMergeableCommand.h"
#include "UndoRedo/UnredoableCommand.h"
#include "tool/LogLine.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QKeySequence>
#include <QUndoStack>

#include <cstdlib>
#include <utility>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\UndoRedo.cpp)";
constexpr int kUndoLimit = 10;
constexpr int kMergeWindowMs = 1000;
constexpr int kDayMs = 24 * 60 * 60 * 1000;

UndoRedo *theInstance = nullptr;

/// Milliseconds from @p from to @p to, which may lie behind midnight; 0 from a time that was never set.
int elapsedMs(QTime from, QTime to)
{
    const int elapsed = from.msecsTo(to);
    return elapsed < 0 ? elapsed + kDayMs : elapsed;
}

} // namespace

UndoRedo::UndoRedo(QObject *parent, UndoHost *host)
    : QObject(parent)
    , m_host(host)
    , m_clock([] { return QTime::currentTime(); })
{
    logWarning(kSource, "UndoRedo::UndoRedo", 34)
        << QCoreApplication::applicationName() << m_temporaryDir.path() << QDir::tempPath()
        << m_temporaryDir.errorString();
    m_undoStack = new QUndoStack(this);
    m_undoStack->setUndoLimit(kUndoLimit);
    m_undoAction = m_undoStack->createUndoAction(this, tr("&Undo"));
    m_undoAction->setShortcuts(QKeySequence::Undo);
    m_redoAction = m_undoStack->createRedoAction(this, tr("&Redo"));
    m_redoAction->setShortcuts(QKeySequence::Redo);
    connect(m_undoStack, &QUndoStack::canRedoChanged, this, &UndoRedo::onCanRedoChanged);
    connect(m_undoStack, &QUndoStack::canUndoChanged, this, &UndoRedo::onCanUndoChanged);
    connect(m_undoStack, &QUndoStack::indexChanged, this, &UndoRedo::onIndexChanged);
}

UndoRedo::~UndoRedo()
{
    if (theInstance == this) {
        theInstance = nullptr;
    }
}

UndoRedo *UndoRedo::instance()
{
    return theInstance;
}

void UndoRedo::publish(UndoRedo *undoRedo)
{
    theInstance = undoRedo;
    // The process ends through exit(), which destroys no object of main: the folder would stay behind.
    static const int removesFolder = std::atexit([] {
        if (theInstance != nullptr) {
            theInstance->m_temporaryDir.remove();
        }
    });
    Q_UNUSED(removesFolder)
}

void UndoRedo::setHost(UndoHost *host)
{
    m_host = host;
}

void UndoRedo::setClock(std::function<QTime()> clock)
{
    m_clock = std::move(clock);
}

bool UndoRedo::inTransaction() const
{
    return m_inTransaction;
}

void UndoRedo::beginSequence(const QString &name)
{
    logDebug(kSource, "UndoRedo::beginSequence", 181) << name << m_sequenceDepth;
    if (m_inTransaction) {
        logDebug(kSource, "UndoRedo::beginSequence", 182) << "Assertion failed:"
                                                          << "!m_inTransaction";
    }
    m_inTransaction = true;
    m_mergeable = false;
    m_transactionName = name;
    m_lastTime = m_clock();
    if (m_sequenceStartIndex < 0) {
        m_sequenceStartIndex = m_undoStack->index();
    }
    m_undoStack->beginMacro(name);
    ++m_sequenceDepth;
}

void UndoRedo::endSequence()
{
    logDebug(kSource, "UndoRedo::endSequence", 199) << m_transactionName << m_sequenceDepth;
    if (m_sequenceDepth > 0) {
        m_undoStack->endMacro();
        --m_sequenceDepth;
    }
    if (m_sequenceDepth == 0) {
        m_inTransaction = false;
    }
    if (m_inTransaction) {
        return;
    }
    if (const QUndoCommand *sequence = m_undoStack->command(m_sequenceStartIndex)) {
        logDebug(kSource, "UndoRedo::endSequence", 211)
            << static_cast<const void *>(sequence) << "childCount" << sequence->childCount();
        if (sequence->childCount() == 0) {
            // The marker replaces the empty step, so that there is nothing to redo.
            m_undoStack->undo();
            pushMarkerAndUndo();
        }
    }
    m_sequenceStartIndex = -1;
    m_lastTransactionName = m_transactionName;
    m_transactionName.clear();
    m_unmergeable = false;
}

void UndoRedo::beginSingle(const QString &name)
{
    logDebug(kSource, "UndoRedo::beginSingle", 236) << name;
    if (m_inTransaction) {
        logDebug(kSource, "UndoRedo::beginSingle", 237) << "Assertion failed:"
                                                        << "!m_inTransaction";
    }
    m_transactionName = name;
    m_inTransaction = true;
    const QTime now = m_clock();
    m_mergeable = false;
    if (name != m_lastTransactionName) {
        m_unmergeable = true;
    } else if (!m_unmergeable && elapsedMs(m_lastTime, now) < kMergeWindowMs) {
        logDebug(kSource, "UndoRedo::beginSingle", 245) << "may be merged";
        m_mergeable = true;
    }
    m_lastTime = now;
}

void UndoRedo::beginSingle()
{
    beginSingle(QString());
}

void UndoRedo::endSingle()
{
    logDebug(kSource, "UndoRedo::endSingle", 255) << m_transactionName;
    m_inTransaction = false;
    m_lastTransactionName = m_transactionName;
    m_transactionName.clear();
    m_unmergeable = false;
}

void UndoRedo::setUnmergeable()
{
    m_unmergeable = true;
}

void UndoRedo::undo()
{
    logDebug(kSource, "UndoRedo::undo", 145);
    m_undoStack->undo();
}

void UndoRedo::redo()
{
    logDebug(kSource, "UndoRedo::redo", 151);
    m_undoStack->redo();
}

void UndoRedo::clear()
{
    m_savedIndex = 0;
    m_undoStack->clear();
    setModified(false);
}

void UndoRedo::undoAndMakeUnredoable()
{
    m_undoStack->undo();
    pushMarkerAndUndo();
}

void UndoRedo::closeUndoView() {}

QString UndoRedo::lastTransactionName() const
{
    return m_lastTransactionName;
}

bool UndoRedo::isTemporaryDirAvailable() const
{
    logDebug(kSource, "UndoRedo::isTemporaryDirAvailable", 88) << m_temporaryDir.path();
    return !m_temporaryDir.path().isEmpty();
}

bool UndoRedo::canUndo() const
{
    return m_undoStack->canUndo();
}

bool UndoRedo::canRedo() const
{
    const QUndoCommand *next = m_undoStack->command(m_undoStack->index());
    return m_undoStack->canRedo() && (next == nullptr || next->id() != UnredoableCommand::kId);
}

void UndoRedo::addCommand(std::unique_ptr<QUndoCommand> command)
{
    logDebug(kSource, "UndoRedo::addCommand", 111)
        << static_cast<const void *>(command.get()) << m_mergeable << m_inTransaction << m_sequenceDepth;
    if (UndoMergeableCommand *last = mergeTarget()) {
        command->redo();
        if (last->mergeWith(command.get())) {
            m_mergeable = true;
            // It stays alive, and belongs to nobody.
            static_cast<void>(command.release());
            return;
        }
        command->undo();
        m_undoStack->push(command.release());
        setUndoNote(QString());
    } else {
        m_undoStack->push(command.release());
    }
    m_mergeable = true;
}

UndoMergeableCommand *UndoRedo::mergeTarget() const
{
    const int index = m_undoStack->index();
    if (!m_mergeable || !m_inTransaction || m_sequenceDepth > 0 || index <= 0 ||
        index > m_undoStack->count()) {
        return nullptr;
    }
    const QUndoCommand *last = m_undoStack->command(index - 1);
    const auto *mergeable = dynamic_cast<const UndoMergeableCommand *>(last);
    if (mergeable == nullptr && last->childCount() > 0) {
        mergeable = dynamic_cast<const UndoMergeableCommand *>(last->child(last->childCount() - 1));
    }
    // The stack shows its commands as constant; folding one in is the one change that is made behind its
    // back.
    return const_cast<UndoMergeableCommand *>(mergeable);
}

void UndoRedo::markSaved()
{
    m_savedIndex = m_undoStack->index();
    setModified(false);
}

void UndoRedo::setUndoNote(const QString &note)
{
    if (m_host != nullptr) {
        m_host->setUndoNote(note);
    }
}

void UndoRedo::onCanRedoChanged(bool /*canRedo*/)
{
    Q_EMIT canRedoChanged(canRedo());
}

void UndoRedo::onCanUndoChanged(bool canUndo)
{
    Q_EMIT canUndoChanged(canUndo);
}

void UndoRedo::onIndexChanged(int idx)
{
    logDebug(kSource, "UndoRedo::onIndexChanged", 105) << idx;
    setModified(idx != m_savedIndex);
}

void UndoRedo::pushMarkerAndUndo()
{
    addCommand(std::make_unique<UnredoableCommand>());
    m_undoStack->undo();
    setUndoNote(QString());
}

void UndoRedo::setModified(bool modified)
{
    if (m_host != nullptr) {
        m_host->setModified(modified);
    }
}
