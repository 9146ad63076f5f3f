#pragma once

#include "project/RowSources.h"
#include "project/StartData.h"

/// The tile sets of the open project: entries of a data file, each of which has one of the editor's own tile
/// sets as its picture.
namespace TileSets {

/// Which of @p start.tileSets the entry @p number looks like. Where there is no such entry, or none with such
/// a picture, that in the same place.
[[nodiscard]] int lookOf(int number, const DataLayer &layer, const StartData &start);

/// The entries with their names; the editor's own where the project has none.
[[nodiscard]] QVector<Row> rows(const DataLayer &layer, const StartData &start);

} // namespace TileSets
