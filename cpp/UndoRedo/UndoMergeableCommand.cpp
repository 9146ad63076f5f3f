#include "UndoRedo/UndoMergeableCommand.h"

#include "tool/LogLine.h"

#include <utility>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\UndoRedo\UndoMergeableCommand.cpp)";

const void *address(const QUndoCommand *command)
{
    return command;
}

} // namespace

UndoMergeableCommand::UndoMergeableCommand(QVariant value, HistorySource history)
    : m_value(std::move(value))
    , m_history(std::move(history))
{
}

void UndoMergeableCommand::undo()
{
    if (!m_mergedCommands.isEmpty()) {
        logDebug(kSource, "UndoMergeableCommand::undo", 328) << "do undo before" << m_mergedCommands.size();
    }
    for (int i = m_mergedCommands.size() - 1; i >= 0; --i) {
        m_mergedCommands.at(i)->doUndo();
    }
    doUndo();
}

void UndoMergeableCommand::redo()
{
    if (!m_mergedCommands.isEmpty()) {
        logDebug(kSource, "UndoMergeableCommand::redo", 339) << "do redo after" << m_mergedCommands.size();
    }
    doRedo();
    for (UndoMergeableCommand *merged : std::as_const(m_mergedCommands)) {
        merged->doRedo();
    }
}

int UndoMergeableCommand::id() const
{
    return 0;
}

bool UndoMergeableCommand::mergeWith(const QUndoCommand *other)
{
    const char *function = "UndoMergeableCommand::mergeWith";
    const bool mergeable = mergingAllowed();
    const auto *command = dynamic_cast<const UndoMergeableCommand *>(other);

    if (m_topLevel) {
        logDebug(kSource, function, 351) << address(this) << id() << address(other) << other->id();
    }
    if (!mergeable || !m_mergeable) {
        if (m_topLevel) {
            logDebug(kSource, function, 388) << "unmerged";
        }
        return false;
    }
    if (m_topLevel) {
        logDebug(kSource, function, 357) << "childCount" << m_mergedCommands.size();
        for (int i = m_mergedCommands.size() - 1; i >= 0; --i) {
            UndoMergeableCommand *merged = m_mergedCommands.at(i);
            if (merged->id() != other->id()) {
                continue;
            }
            logDebug(kSource, function, 362) << address(merged) << merged->id();
            if (!merged->m_mergeable) {
                logDebug(kSource, function, 364) << "break unmergeable";
                return false;
            }
            if (command != nullptr && merged->commandType() == command->commandType() &&
                merged->mergeSame(*command)) {
                logDebug(kSource, function, 369) << "merged!";
                return true;
            }
        }
    }
    if (command == nullptr) {
        return false;
    }
    if (mergeSame(*command)) {
        logDebug(kSource, function, 376) << "merged(2)";
        return true;
    }
    if (!m_topLevel) {
        return false;
    }
    logDebug(kSource, function, 380) << "append newCommand to list";
    std::unique_ptr<UndoMergeableCommand> merged = command->clone();
    merged->m_topLevel = false;
    m_mergedCommands.append(merged.release());
    return true;
}

bool UndoMergeableCommand::mergingAllowed() const
{
    const UndoHistory *present = historyOf(m_history);
    return present != nullptr && present->mergeable();
}
