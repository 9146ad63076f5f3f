#pragma once

#include "PilotPlay.h"

#include <QMap>
#include <QStringList>

/// Lets this program play @p plays one after the other, each in a process of its own with @p options, since
/// its windows have one language, and with @p folders: names of options, and a folder in which each play gets
/// one of its own.
/// What a play says goes to this program's output. A lesson that the companion has no file of is left out,
/// with a line that says so, when @p mayLack is true. Returns the exit status: 0 when all the others came to
/// their ends.
[[nodiscard]] int playSeries(const QVector<PilotPlay> &plays, const QStringList &options,
                             const QMap<QString, QString> &folders, bool mayLack);
