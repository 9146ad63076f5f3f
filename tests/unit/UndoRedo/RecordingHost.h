#pragma once

#include "UndoRedo/UndoHost.h"

#include <QString>
#include <QStringList>

/// Remembers what the undo history said.
class RecordingHost final : public UndoHost
{
public:
    void setModified(bool value) override { modified = value; }
    void setUndoNote(const QString &note) override { notes << note; }

    bool modified = false;
    QStringList notes;
};
