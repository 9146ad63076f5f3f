#pragma once

#include "UndoRedo/UndoHistory.h"

#include <QList>
#include <QUndoCommand>
#include <QVariant>

#include <memory>

/// A change that later changes can be folded into, so that a steady drag is one step of the history.
///
/// A later command that changes the same thing gives this command its value. Any other is cloned into a list
/// that is redone after this command, oldest first, and undone before it, newest first. The list does not own
/// the clones: they stay allocated when this command goes.
class UndoMergeableCommand : public QUndoCommand
{
public:
    /// @p history says whether merging is allowed at present; without one it is not.
    UndoMergeableCommand(QVariant value, HistorySource history);

    void undo() override;
    void redo() override;
    [[nodiscard]] int id() const override;

    /// Takes @p other in, or returns false and leaves both as they were. False unless the history allows
    /// merging at present, and for a command that is not an UndoMergeableCommand.
    bool mergeWith(const QUndoCommand *other) override;

    virtual void doUndo() = 0;
    virtual void doRedo() = 0;
    /// Tells the kinds of mergeable command apart.
    [[nodiscard]] virtual int commandType() const = 0;
    /// Takes over the value of @p other when it changes the same thing; false when it does not.
    virtual bool mergeSame(const UndoMergeableCommand &other) = 0;
    /// Writes @p value to the thing that this command changes, remembering the present value for undo when
    /// @p saveOld is set. With a @p source, @p value becomes this command's own and the result is true;
    /// otherwise the result is false.
    virtual bool apply(const QVariant &value, bool saveOld, const UndoMergeableCommand *source) = 0;
    /// A copy without the merged commands.
    [[nodiscard]] virtual std::unique_ptr<UndoMergeableCommand> clone() const = 0;

    /// A command that is not mergeable takes no other in. The start value is true.
    void setMergeable(bool mergeable) { m_mergeable = mergeable; }
    [[nodiscard]] QVariant value() const { return m_value; }
    [[nodiscard]] int mergedCount() const { return m_mergedCommands.size(); }

protected:
    [[nodiscard]] const HistorySource &history() const { return m_history; }
    /// Whether there is a history, and it allows merging at present.
    [[nodiscard]] bool mergingAllowed() const;
    void setValue(const QVariant &value) { m_value = value; }

private:
    bool m_mergeable = true;
    bool m_topLevel = true; // cleared in a command that stands in another one's list
    QVariant m_value;
    QList<UndoMergeableCommand *> m_mergedCommands;
    HistorySource m_history;
};
