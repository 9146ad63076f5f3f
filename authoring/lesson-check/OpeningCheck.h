#pragma once

#include "lesson-check/Finding.h"
#include "lesson-check/Lesson.h"

/// How every lesson but the first begins: the question in item 2 whether to make a new project, and the
/// sample project that is fetched for a new one.
[[nodiscard]] Findings checkOpening(const Lesson &lesson);
