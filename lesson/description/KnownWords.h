#pragma once

#include "lesson/Condition.h"
#include "lesson/description/DescriptionSet.h"

/// Whether what a step's words name is there in the editor. Each gives a sentence that says what is missing;
/// empty where nothing is.
namespace KnownWords {

/// Of the key of a window.
[[nodiscard]] QString windowProblem(const QString &windowKey, const DescriptionSet &windows);

/// What keeps a condition from ever coming true in a step of the window @p windowKey: no window has the key,
/// the action, the context menu or the target that it names, or that window has no such control, or the
/// control no such tab or value.
[[nodiscard]] QString conditionProblem(const Condition &condition, const QString &windowKey,
                                       const DescriptionSet &windows);

} // namespace KnownWords
