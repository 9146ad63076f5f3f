#pragma once

#include "lesson/Condition.h"
#include "lesson/description/DescriptionSet.h"

/// What keeps a condition about a control from ever coming true in the window @p windowKey: that has no such
/// control, or the control no such tab or value. Empty for other conditions, and where nothing does.
[[nodiscard]] QString controlProblem(const Condition &condition, const QString &windowKey,
                                     const DescriptionSet &windows);
