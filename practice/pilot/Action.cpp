#include "pilot/Action.h"

namespace {

QString at(const QPoint &place)
{
    return QStringLiteral("(%1, %2)").arg(place.x()).arg(place.y());
}

} // namespace

QString Action::inWords() const
{
    switch (kind) {
    case Kind::kClick:
        return QStringLiteral("a click at ") + at(place);
    case Kind::kDoubleClick:
        return QStringLiteral("a double click at ") + at(place);
    case Kind::kRightClick:
        return QStringLiteral("a right click at ") + at(place);
    case Kind::kPress:
        return QStringLiteral("a press at ") + at(place);
    case Kind::kCarry:
        return QStringLiteral("dragging to ") + at(place);
    case Kind::kRelease:
        return QStringLiteral("letting go at ") + at(place);
    case Kind::kPressButton:
        return QStringLiteral("a click on the companion's button");
    case Kind::kRest:
        return QStringLiteral("resting the mouse at ") + at(place);
    case Kind::kSelectAll:
        return QStringLiteral("Ctrl+A");
    case Kind::kType:
        return QStringLiteral("typing \"%1\"").arg(text);
    case Kind::kEnter:
        return QStringLiteral("Enter");
    case Kind::kEscape:
        return QStringLiteral("Esc");
    case Kind::kChoose:
        return QStringLiteral("choosing row %1").arg(row);
    case Kind::kChooseQuoted:
        return QStringLiteral("choosing what the hint quotes, if there is a list");
    }
    return {};
}
