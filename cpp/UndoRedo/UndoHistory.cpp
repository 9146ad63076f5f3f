#include "UndoRedo/UndoHistory.h"

#include <QString>
#include <QUndoCommand>

UndoHistory *historyOf(const HistorySource &source)
{
    return source ? source() : nullptr;
}

void tellUndoNote(const HistorySource &source, const QString &note)
{
    UndoHistory *history = note.isEmpty() ? nullptr : historyOf(source);
    if (history != nullptr) {
        history->setUndoNote(note);
    }
}
