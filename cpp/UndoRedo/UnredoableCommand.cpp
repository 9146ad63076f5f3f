#include "UndoRedo/UnredoableCommand.h"

UnredoableCommand::UnredoableCommand()
    : QUndoCommand(QStringLiteral("Unredoable"))
{
}

void UnredoableCommand::undo() {}

void UnredoableCommand::redo() {}

int UnredoableCommand::id() const
{
    return kId;
}
