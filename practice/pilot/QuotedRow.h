#pragma once

#include <QStringList>

/// The texts that @p hint quotes, in the marks of any of its languages.
[[nodiscard]] QStringList quotedIn(const QString &hint);

/// The row, counted from 0, that @p hint quotes: one with the very words of a quotation, otherwise the first
/// one that contains one, such as "2: Herb found". -1 when it quotes none of @p rows.
[[nodiscard]] int quotedRow(const QString &hint, const QStringList &rows);
