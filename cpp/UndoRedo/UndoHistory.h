#pragma once

#include <functional>
#include <memory>

class QString;
class QUndoCommand;

/// What a document and its commands ask of the undo history.
class UndoHistory
{
public:
    [[nodiscard]] virtual bool inTransaction() const = 0;
    /// Whether the next command may be folded into the step before.
    [[nodiscard]] virtual bool mergeable() const = 0;
    /// Runs @p command and puts it on the stack, or folds it into the step before. A command that was folded
    /// in stays alive and belongs to nobody.
    virtual void addCommand(std::unique_ptr<QUndoCommand> command) = 0;
    /// The present position of the history is what the saved file holds.
    virtual void markSaved() = 0;
    /// Forgets all steps. The document as it stands counts as saved.
    virtual void clear() = 0;
    /// What the last undo or redo was about, for an author's tool; empty for nothing.
    virtual void setUndoNote(const QString &note) = 0;

protected:
    UndoHistory() = default;
    ~UndoHistory() = default;
    UndoHistory(const UndoHistory &) = default;
    UndoHistory &operator=(const UndoHistory &) = default;
};

/// Gives the history that there is at the moment, or null. An empty one stands for no history at all.
using HistorySource = std::function<UndoHistory *()>;

/// The history that @p source gives, or null.
[[nodiscard]] UndoHistory *historyOf(const HistorySource &source);
/// Sets @p note as the undo note of the history, if there is one; an empty note leaves the one that is set.
void tellUndoNote(const HistorySource &source, const QString &note);
