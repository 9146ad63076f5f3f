#pragma once

class QString;

/// What the undo history tells the object that stands for the document to the outside.
class UndoHost
{
public:
    /// Whether the document differs from what was saved last, as far as the position in the history says.
    virtual void setModified(bool modified) = 0;

    /// What the last undo or redo was about, for an author's tool; empty for nothing.
    virtual void setUndoNote(const QString &note) = 0;

protected:
    UndoHost() = default;
    ~UndoHost() = default;
    UndoHost(const UndoHost &) = default;
    UndoHost &operator=(const UndoHost &) = default;
};
