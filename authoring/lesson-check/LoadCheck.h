#pragma once

#include "lesson-check/Finding.h"
#include "lesson-check/Lesson.h"

/// Loads the file of @p lesson, which is at @p path, as the companion does, and reports when it finds other
/// items than @p lesson has. No other document may be there meanwhile.
[[nodiscard]] Findings checkLoading(const Lesson &lesson, const QString &path);
