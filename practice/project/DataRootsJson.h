#pragma once

#include "project/DataLayer.h"

/// Data files as one JSON object, also those that are to be gone, and back.
namespace DataRootsJson {

[[nodiscard]] QJsonObject save(const DataRoots &roots);
[[nodiscard]] DataRoots load(const QJsonObject &json);

} // namespace DataRootsJson
