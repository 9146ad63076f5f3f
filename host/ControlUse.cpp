#include "host/ControlUse.h"

#include "host/Way.h"
#include "lesson/Scenario.h"

namespace {

using Kind = ControlUse::Kind;

Kind kindOf(const QString &icon)
{
    if (icon == QLatin1String("doubleClick")) {
        return Kind::kDoubleClick;
    }
    return icon == QLatin1String("rightClick") ? Kind::kRightClick : Kind::kClick;
}

} // namespace

ControlUse ControlUse::of(const Step &step, const ControlSpot &spot)
{
    using Type = Condition::Type;
    const Condition &condition = step.condition;
    ControlUse use{spot, kindOf(step.icon), {}, false};
    if (LessonWords::saysDrag(step.hint)) {
        use.kind = Kind::kDrag;
    } else if (condition.type() == Type::kComboBox) {
        use.kind = Kind::kChoose;
        use.text = condition.value();
    } else if (condition.type() == Type::kSpinBox) {
        use.kind = Kind::kType;
        // The unit stands in the box already.
        use.text = condition.value().section(QLatin1Char(' '), 0, 0);
    } else if (condition.type() == Type::kTextLength) {
        use.kind = Kind::kType;
        use.text = QString(qMax(1, condition.value().toInt()), QLatin1Char('a'));
    } else if (spot.control.isEmpty() && condition.type() == Type::kAction &&
               condition.value() == QLatin1String("close")) {
        use.kind = Kind::kEnd;
        use.text = condition.target();
    } else if (step.icon == QLatin1String("keyboard")) {
        use.kind = Kind::kType;
        use.text = LessonWords::numberToType(step.hint);
        use.pressesEnter = condition.type() != Type::kNext && condition.type() != Type::kYesNo;
    } else if (step.icon == QLatin1String("click") && condition.type() == Type::kNext) {
        // No condition names the row of what may be a combo box.
        use.kind = Kind::kClickQuoted;
        use.text = step.hint;
        use.times = LessonWords::timesToClick(step.hint);
    }
    return use;
}

ControlUse ControlUse::of(const Way &way)
{
    return {way.by, kindOf(way.icon), {}, false};
}

ControlUse ControlUse::closingMenu()
{
    return {{QStringLiteral("Menu"), ControlSpot::dismiss()}, Kind::kClick, {}, false};
}
