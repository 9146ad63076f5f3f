#include "pilot/ActionPlan.h"

#include "lesson/QuotedRow.h"
#include "lesson/Scenario.h"
#include "pilot/ArrowSpot.h"
#include "pilot/DragWay.h"

namespace {

using Kind = Action::Kind;
using Type = Condition::Type;

/// What an icon that shows a clock gives the editor for its work.
constexpr int kWorkMs = 10000;

int buttonCount(const Step &step)
{
    switch (step.condition.type()) {
    case Type::kNext:
        return 1;
    case Type::kYesNo:
        return 2;
    default:
        return 0;
    }
}

bool isInPlace(const Step &step, const Sight &sight)
{
    if (!sight.overlays.bubble || sight.overlays.buttons.size() != buttonCount(step)) {
        return false;
    }
    if (!sight.place) {
        return !step.hasPosition();
    }
    return !sight.lacksWindow && arrowSpot(sight.overlays.bubble->topLeft(), *sight.place);
}

std::optional<Kind> mouseAction(const QString &icon)
{
    if (icon == QLatin1String("doubleClick")) {
        return Kind::kDoubleClick;
    }
    if (icon == QLatin1String("rightClick")) {
        return Kind::kRightClick;
    }
    if (icon == QLatin1String("click") || icon == QLatin1String("keyboard")) {
        return Kind::kClick;
    }
    return {};
}

Action key(Kind kind, const QString &text = {})
{
    return {kind, {}, 0, text, 0};
}

/// What the condition wants, or else the first number that the hint names, or else a name.
QString textFor(const Step &step)
{
    const Condition &condition = step.condition;
    if (condition.type() == Type::kSpinBox) {
        // The unit stands in the box already.
        return condition.value().section(QLatin1Char(' '), 0, 0);
    }
    if (condition.type() == Type::kTextLength) {
        return QString(qMax(1, condition.value().toInt()), QLatin1Char('a'));
    }
    const QString number = LessonWords::numberToType(step.hint);
    return number.isEmpty() ? QString::fromLatin1(ActionPlan::kName) : number;
}

QVector<Action> typing(const Step &step)
{
    QVector<Action> actions{key(Kind::kSelectAll), key(Kind::kType, textFor(step))};
    // A number or a text of a certain length is there as soon as it is typed, and Enter would press a button.
    if (buttonCount(step) == 0 && step.condition.type() != Type::kTextLength &&
        step.condition.type() != Type::kSpinBox) {
        actions.append(key(Kind::kEnter));
    }
    return actions;
}

/// The hint alone says so, and what ends with the click ends with the first.
int clicksFor(const Step &step)
{
    const bool isForNext = step.icon == QLatin1String("click") && step.condition.type() == Type::kNext;
    return isForNext ? LessonWords::timesToClick(step.hint) : 1;
}

/// What follows the click of the mouse.
QVector<Action> finishing(const Step &step)
{
    if (step.icon == QLatin1String("keyboard")) {
        return typing(step);
    }
    if (step.icon == QLatin1String("click") && step.condition.type() == Type::kComboBox) {
        return {{Kind::kChoose, {}, 0, {}, step.condition.value().toInt()}};
    }
    // What is clicked may be a combo box, whose row no condition names.
    if (step.icon == QLatin1String("click") && step.condition.type() == Type::kNext &&
        !quotedIn(step.hint).isEmpty()) {
        return {key(Kind::kChooseQuoted, step.hint)};
    }
    return {};
}

/// A drag that the editor sees on its way, and not only where it begins and ends.
QVector<Action> dragging(const QPoint &from, const QPoint &way)
{
    constexpr int kParts = 3;
    QVector<Action> actions{{Kind::kPress, from, 0, {}, 0}};
    for (int part = 1; part <= kParts; ++part) {
        actions.append({Kind::kCarry, from + way * part / kParts, 0, {}, 0});
    }
    actions.append({Kind::kRelease, from + way, 0, {}, 0});
    return actions;
}

Action pressOf(const SeenOverlays::Window &button)
{
    // A place inside of the window: it moves once more when its companion comes to lay out the hint only now.
    // In its left part: the right edge of Yes lies below No.
    return {Kind::kPressButton, {button.rect.width() / 3, button.rect.height() / 2}, button.id, {}, 0};
}

/// Whether the step waits for the end of a game that is tried out, whose window is none of the lesson's.
bool endsTheGame(const Step &step)
{
    return step.condition.type() == Type::kAction && step.condition.target() == QLatin1String("play") &&
           step.condition.value() == QLatin1String("close");
}

int waitOf(const Step &step)
{
    if (step.condition.type() == Type::kWait) {
        return step.condition.waitMs();
    }
    return step.icon == QLatin1String("wait") ? kWorkMs : 0;
}

} // namespace

std::optional<ActionPlan> ActionPlan::make(const Step &step, const Sight &sight, bool answersYes)
{
    if (!isInPlace(step, sight)) {
        return {};
    }
    ActionPlan plan;
    plan.waitMs = waitOf(step);
    if (endsTheGame(step)) {
        plan.actions = {key(Kind::kEscape)};
        plan.canComeToNothing = true;
        return plan;
    }
    if (step.hasPosition()) {
        plan.spot = arrowSpot(sight.overlays.bubble->topLeft(), *sight.place);
    }
    const std::optional<Kind> mouse = mouseAction(step.icon);
    if (plan.spot && mouse == Kind::kClick && LessonWords::saysDrag(step.hint)) {
        plan.actions = dragging(*plan.spot, dragWay(step.hint));
    } else if (plan.spot && mouse) {
        plan.actions += QVector<Action>(clicksFor(step), {*mouse, *plan.spot, 0, {}, 0});
        plan.actions += finishing(step);
    } else if (plan.spot && step.condition.type() == Type::kWait && step.icon == QLatin1String("eye")) {
        // What shows by itself may need the mouse above it.
        plan.actions.append({Kind::kRest, *plan.spot, 0, {}, 0});
    } else if (!plan.spot && step.icon == QLatin1String("keyboard") && buttonCount(step) == 0) {
        // The field that a window opens with has the keyboard.
        plan.actions = typing(step);
    }
    const QVector<SeenOverlays::Window> &buttons = sight.overlays.buttons;
    if (!buttons.isEmpty()) {
        plan.actions.append(pressOf(answersYes ? buttons.constFirst() : buttons.constLast()));
    }
    return plan;
}

std::optional<ActionPlan> ActionPlan::makeReturn(const QString &icon, const Sight &sight)
{
    const std::optional<Kind> mouse = mouseAction(icon);
    if (!sight.overlays.bubble || !sight.overlays.buttons.isEmpty() || !sight.place || !mouse) {
        return {};
    }
    ActionPlan plan;
    plan.spot = arrowSpot(sight.overlays.bubble->topLeft(), *sight.place);
    if (!plan.spot) {
        return {};
    }
    plan.actions.append({*mouse, *plan.spot, 0, {}, 0});
    return plan;
}
