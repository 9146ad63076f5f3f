#pragma once

#include "lesson-check/Finding.h"
#include "lesson-check/Lesson.h"

/// Follows the ways through @p lesson: ids that stand twice, jumps to nowhere, steps that no way reaches.
[[nodiscard]] Findings checkFlow(const Lesson &lesson);
