#pragma once

#include "lesson/description/JsonReader.h"

/// The underlined letters by which entries are chosen from the keyboard: the one behind a single "&".
namespace Mnemonics {

/// The labels of a menu's entries in @p locale, each with a letter of its own while there are any: one of the
/// English label. Other languages have it in brackets behind their text, as is usual with them.
[[nodiscard]] QStringList give(const QVector<LocalText> &labels, const QString &locale);

/// Null when the label has none.
[[nodiscard]] QChar letterOf(const QString &label);

/// The label as a sentence has it: without its mnemonic, and without the dots that say "there is more".
[[nodiscard]] QString plain(const QString &label);

} // namespace Mnemonics
