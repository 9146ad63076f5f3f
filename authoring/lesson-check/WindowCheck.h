#pragma once

#include "lesson-check/Finding.h"
#include "lesson-check/Lesson.h"
#include "lesson/description/DescriptionSet.h"

/// Follows which windows can be open along all ways through @p lesson, and names each step that waits for a
/// window to close that no way has opened: it would be over before it began. A step opens and closes what its
/// condition says and what the control does that it points at.
[[nodiscard]] Findings checkWindows(const Lesson &lesson, const DescriptionSet &windows);
