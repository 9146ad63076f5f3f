#pragma once

#include "UndoRedo/UndoHistory.h"
#include "tool/TemporaryFolder.h"

#include <QObject>
#include <QString>
#include <QTime>

#include <functional>
#include <memory>

class QAction;
class QUndoStack;
class UndoHost;
class UndoMergeableCommand;

/// The undo history of the document: a stack of the last ten steps, with transactions.
///
/// A single transaction is one step; it goes on with the step before it when that one had the same name and
/// began less than a second earlier. A sequence is one step that holds all the commands given between its
/// begin and its end; sequences nest. A command given outside a transaction is a step too.
///
/// main publishes the one instance. The document is told to look for it there, and does without a history
/// where there is none.
class UndoRedo : public QObject, public UndoHistory
{
    Q_OBJECT
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY canUndoChanged)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY canRedoChanged)

public:
    /// @p host is told of changes; it may be null, is not owned, and is replaced with setHost before it dies.
    explicit UndoRedo(QObject *parent = nullptr, UndoHost *host = nullptr);
    ~UndoRedo() override;

    /// The published object, or null.
    [[nodiscard]] static UndoRedo *instance();
    /// Makes @p undoRedo the instance, until it is destroyed.
    static void publish(UndoRedo *undoRedo);
    void setHost(UndoHost *host);
    /// Where the time of day comes from, for tests.
    void setClock(std::function<QTime()> clock);

    Q_INVOKABLE bool inTransaction() const override;
    Q_INVOKABLE void beginSequence(const QString &name);
    /// Ends the innermost sequence. An outermost one that held no command leaves nothing to undo, and nothing
    /// to redo either.
    Q_INVOKABLE void endSequence();
    Q_INVOKABLE void beginSingle(const QString &name);
    /// As above, with an empty name.
    Q_INVOKABLE void beginSingle();
    Q_INVOKABLE void endSingle();
    /// Forbids the single transactions up to the next end of a transaction to go on with the step before.
    Q_INVOKABLE void setUnmergeable();
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();
    Q_INVOKABLE void clear() override;
    /// Undoes the last step for good: it cannot be redone.
    Q_INVOKABLE void undoAndMakeUnredoable();
    /// Does nothing: this program shows no list of steps.
    Q_INVOKABLE void closeUndoView();
    Q_INVOKABLE QString lastTransactionName() const;
    Q_INVOKABLE bool isTemporaryDirAvailable() const;

    [[nodiscard]] bool canUndo() const;
    /// False also when only the marker of an undone step could be redone.
    [[nodiscard]] bool canRedo() const;

    void addCommand(std::unique_ptr<QUndoCommand> command) override;
    void markSaved() override;
    [[nodiscard]] bool mergeable() const override { return m_mergeable; }
    /// Hands @p note on to the host.
    void setUndoNote(const QString &note) override;

Q_SIGNALS:
    /// The value of canRedo, whenever the stack says that its own may have changed.
    void canRedoChanged(bool canRedo);
    void canUndoChanged(bool canUndo);

private Q_SLOTS:
    void onCanRedoChanged(bool canRedo);
    void onCanUndoChanged(bool canUndo);
    void onIndexChanged(int idx);

private:
    /// The command that a new one may be folded into, or null.
    [[nodiscard]] UndoMergeableCommand *mergeTarget() const;
    void pushMarkerAndUndo();
    void setModified(bool modified);

    QUndoStack *m_undoStack = nullptr;
    QAction *m_undoAction = nullptr;
    QAction *m_redoAction = nullptr;
    bool m_inTransaction = false;
    int m_sequenceDepth = 0;
    int m_sequenceStartIndex = -1;
    QString m_transactionName;
    QString m_lastTransactionName;
    QTime m_lastTime;
    bool m_mergeable = false;
    bool m_unmergeable = false;
    TemporaryFolder m_temporaryDir;
    int m_savedIndex = 0;

    UndoHost *m_host = nullptr;
    std::function<QTime()> m_clock;
};
