#pragma once

#include <QUndoCommand>

/// A command that does nothing. On the redo side of the history it marks what must not be redone.
class UnredoableCommand : public QUndoCommand
{
public:
    static constexpr int kId = 4;

    UnredoableCommand();

    void undo() override;
    void redo() override;
    [[nodiscard]] int id() const override;
};
