#pragma once

#include <QStringList>

/// The texts that @p hint quotes, in the marks of any of its languages.
[[nodiscard]] QStringList quotedIn(const QString &hint);

/// The row, counted from 0, that @p hint quotes: one with the very words of a quotation, otherwise the first
/// one that contains one, such as "2: Herb found". Where it quotes none of @p rows, the first one that
/// contains @p own, a name that was typed, if one was: a hint cannot know it and says "your cloak". -1 when
/// there is no such row.
[[nodiscard]] int quotedRow(const QString &hint, const QStringList &rows, const QString &own);
