#pragma once

#include "lesson-check/Finding.h"
#include "lesson-check/Lesson.h"

/// Follows the ways through @p lesson: ids that stand twice, jumps to nowhere, steps that no way reaches, and
/// a click that ends two steps. Wants a lesson whose fields could all be read.
[[nodiscard]] Findings checkFlow(const Lesson &lesson);
