#pragma once

#include "Tutorial/localisation/SampleTable.h"
#include "Tutorial/localisation/TranslateText.h"

#include <QString>
#include <QStringList>

#include <cstddef>

/// The most bytes that the data files of one step may have together, and the most characters by which
/// translating may make them longer.
///
/// An answer holds up to seven characters for one of these, as "\\u0001", and they take three bytes each
/// for a moment, which has to fit a byte array of less than 2 GiB. Log lines that would not fit are cut.
inline constexpr std::size_t kMostPresetBytes = std::size_t(1) << 25;

/// The step directories ("step1", "step2", ...) directly under @p patchRoot, in ascending order of their
/// numbers. The order of directories with equal numbers is open.
[[nodiscard]] QStringList listPresetSteps(const QString &patchRoot);

/// The game project's data files as they stand at the step @p stepName, translated: a JSON object of
/// "data/NAME" to the file's text.
///
/// The files come from the chain of patches under "resource/patch" (or else "tutorial-win/resource/patch") in
/// @p applicationDirectory. Null when nothing is to be sent: there is no file at that step, or something
/// failed, which is logged as a warning.
[[nodiscard]] QString presetData(const QString &stepName, const QString &applicationDirectory,
                                 const SampleTable &table, const TranslateText &translate);
