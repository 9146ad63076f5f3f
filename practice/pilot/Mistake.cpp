#include "pilot/Mistake.h"

namespace {

using Kind = Action::Kind;

// In pixels: from a row to the one below it, from OK to Cancel, and past the edge of a button.
constexpr QPoint kNextRow(0, 26);
constexpr QPoint kNextButton(100, 0);
constexpr QPoint kBeside(-60, 0);

constexpr int kKinds = 5;

Kind otherButton(Kind kind)
{
    return kind == Kind::kRightClick ? Kind::kClick : Kind::kRightClick;
}

} // namespace

QVector<Action> mistakeIn(const ActionPlan &plan, int number)
{
    if (!plan.spot || plan.actions.isEmpty()) {
        return {};
    }
    switch (number % kKinds) {
    case 0:
        return {{Kind::kClick, *plan.spot + kNextRow, 0, {}, 0}};
    case 1:
        return {{Kind::kEscape, {}, 0, {}, 0}};
    case 2:
        return {{otherButton(plan.actions.constFirst().kind), *plan.spot, 0, {}, 0}};
    case 3:
        return {{Kind::kClick, *plan.spot + kNextButton, 0, {}, 0}};
    default:
        return {{Kind::kDoubleClick, *plan.spot + kBeside, 0, {}, 0}};
    }
}
