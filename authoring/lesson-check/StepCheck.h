#pragma once

#include "lesson-check/Finding.h"
#include "lesson-check/Lesson.h"
#include "lesson/description/DescriptionSet.h"

/// Looks at each step of @p lesson alone: window key, condition, icon, command, position, and the number of
/// its text.
[[nodiscard]] Findings checkSteps(const Lesson &lesson, const DescriptionSet &windows);
