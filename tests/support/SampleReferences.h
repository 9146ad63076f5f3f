#pragma once

#include "SampleFiles.h"

#include <QStringList>

namespace sample {

/// Whatever the files of a step refer to and do not hold, a line each: "Map001.json event 3: no map 9".
/// Commands with unknown codes are among it, since nobody knows what they refer to.
QStringList danglingReferences(const Files &files);

} // namespace sample
