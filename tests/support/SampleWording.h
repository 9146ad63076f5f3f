#pragma once

#include "SampleFiles.h"

#include <QStringList>

/// What the sample project says, and in which form its commands say it.
namespace sample {

/// The places of texts that no translator gets to, and of translated ones that are not written as numbers.
QStringList strayTexts(const Files &files);

/// The commands whose parameters are not of the form that the others with their code have.
QStringList misshapenCommands(const Files &files);

/// The choices whose branches are missing or say something else than they do.
QStringList mismatchedBranches(const Files &files);

/// The messages that do not fit into a message window: lines of @p texts that have more than @p letters, and
/// messages of more than four lines.
QStringList overlongMessages(const Files &files, const QMap<QString, QString> &texts, int letters);

} // namespace sample
