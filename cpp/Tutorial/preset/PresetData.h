#pragma once

#include <cstddef>

#include <QString>
#include <QStringList>

#include "Tutorial/localisation/SampleTable.h"
#include "Tutorial/localisation/SampleTranslators.h"

/// The most bytes that the data files of one step may have together, and the most characters by which
/// translating may make them longer.
///
/// A log line is what sets it: it may hold a text twice, where a byte that is no UTF-8 becomes three bytes
/// and each of these four characters, "\\xEF". These 24 characters take up to four bytes each in the system's
/// encoding, and all of them have to fit a byte array, which ends below 2 GiB.
inline constexpr std::size_t kMostPresetBytes = std::size_t(1) << 24;

/// The step directories ("step1", "step2", ...) directly under @p patchRoot, in ascending order of their
/// numbers. The order of directories with equal numbers is open.
[[nodiscard]] QStringList listPresetSteps(const QString &patchRoot);

/// The game project's data files as they stand at the step @p stepName, translated, as one complete command
/// for the host: "feedbackPresetData", the field separator, and a JSON object of "data/NAME" to the file's
/// text.
///
/// The files come from the chain of patches under "resource/patch" (or else "tutorial-win/resource/patch") in
/// @p applicationDirectory. Null when nothing is to be sent: there is no file at that step, or something
/// failed, which is logged as a warning.
[[nodiscard]] QString presetDataReply(const QString &stepName, const QString &applicationDirectory,
                                      const SampleTable &table, const TranslateText &translate);
