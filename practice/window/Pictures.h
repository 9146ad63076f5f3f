#pragma once

#include <QPixmap>
#include <QStringList>

/// The practice editor's drawings: the files of ../pictures, which scripts/render-pictures makes from their
/// vector sources.
namespace Pictures {

/// Names of the drawings in a folder, "tiles" or "icons".
[[nodiscard]] QStringList namesIn(const QString &folder);

/// A drawing in the size that it has. Null for a name that is unknown.
[[nodiscard]] QPixmap load(const QString &folder, const QString &name);

} // namespace Pictures
