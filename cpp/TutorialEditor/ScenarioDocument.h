#pragma once

#include "TutorialEditor/ItemChanges.h"
#include "TutorialEditor/ItemTree.h"
#include "UndoRedo/UndoHistory.h"

/// What the commands of the undo history know of the document: its items, and the history itself.
class ScenarioDocument : public ItemChanges
{
    Q_OBJECT

public:
    /// @p history is asked for the undo history each time that one is needed.
    explicit ScenarioDocument(HistorySource history);

    [[nodiscard]] ItemTree *tree() { return &m_tree; }
    /// The undo history, or null.
    [[nodiscard]] UndoHistory *history() const { return historyOf(m_history); }
    [[nodiscard]] const HistorySource &historySource() const { return m_history; }

    /// Puts @p data behind the other items, and has it ask this object before it changes. The list does not
    /// own it; its node is put into the tree by the caller.
    void addItem(TutorialItemData *data);

private:
    ItemTree m_tree;
    HistorySource m_history;
};
