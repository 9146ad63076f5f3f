#pragma once

#include "pilot/ActionPlan.h"

/// What a beginner does in place of what @p plan says: the wrong row or button, the wrong button of the
/// mouse, Esc, a click beside it, in turn as @p number counts. Nothing in a plan that points nowhere, since
/// there is nothing to miss.
[[nodiscard]] QVector<Action> mistakeIn(const ActionPlan &plan, int number);
