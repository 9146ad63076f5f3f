#pragma once

#include <QString>

/// Puts a project into @p folder as "New" makes it, with the names of @p locale: whoever answers that a
/// project is there has to have one. The descriptions of the windows have been read. False when it cannot be
/// written; @p error then says why.
[[nodiscard]] bool putProject(const QString &folder, const QString &locale, QString *error);
