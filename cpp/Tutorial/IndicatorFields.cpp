#include "Tutorial/IndicatorFields.h"

#include "Tutorial/link/CommandFields.h"

namespace {

// The fields behind "indicator" and "update", in their order.
constexpr int kX = 2;
constexpr int kY = 3;
constexpr int kWindowKey = 4;
constexpr int kHint = 5;
constexpr int kFlags = 6;
constexpr int kIconKind = 7;

// Bits of the flags.
constexpr int kNextFlag = 1;
constexpr int kYesNoFlag = 2;
constexpr int kArrowFlag = 4;

} // namespace

IndicatorUpdate indicatorUpdate(const CommandFields &fields)
{
    const int flags = fields.number(kFlags);
    IndicatorUpdate update;
    update.target = {fields.number(kX), fields.number(kY)};
    update.windowKey = fields.text(kWindowKey);
    update.hint = fields.text(kHint);
    update.arrow = (flags & kArrowFlag) != 0;
    update.next = (flags & kNextFlag) != 0;
    update.yesNo = (flags & kYesNoFlag) != 0;
    update.iconKind = fields.number(kIconKind);
    return update;
}
