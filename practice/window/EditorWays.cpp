#include "window/EditorWays.h"

#include "lesson/description/ControlSpots.h"
#include "window/WindowBuilder.h"

#include <algorithm>

namespace {

using Does = Way::Does;
using Kind = WindowDescription::Kind;

/// Whether it does more to the window than to leave it.
bool closesForMore(const ControlAction &action)
{
    return action.close && !(action.run.isEmpty() && action.open.isEmpty());
}

bool canCloseForMore(const ControlAction &action)
{
    return closesForMore(action) || (action.otherwise != nullptr && canCloseForMore(*action.otherwise));
}

/// Whether the window has a control that closes it and keeps what was done there, or goes on with it.
bool canBeAccepted(const WindowDescription &window)
{
    return std::any_of(window.controls.cbegin(), window.controls.cend(),
                       [](const ControlDescription &control) {
                           return canCloseForMore(control.click) || canCloseForMore(control.doubleClick);
                       });
}

} // namespace

EditorWays::EditorWays(const DescriptionSet *descriptions)
    : m_descriptions(descriptions)
{
    const QStringList keys = descriptions->keys();
    for (const QString &key : keys) {
        const WindowDescription &window = (*descriptions)[key];
        for (const ControlDescription &control : window.controls) {
            addControl(control, {key, control.name}, windowOf(key));
        }
        for (const PopupDescription &popup : window.popups) {
            for (const ControlDescription &entry : popup.controls) {
                addControl(entry, {key, popup.name + QLatin1Char('/') + entry.name}, popup.name);
            }
        }
    }
    for (const QString &key : keys) {
        addDismissals(key);
    }
    std::stable_sort(m_ways.begin(), m_ways.end(),
                     [](const Way &left, const Way &right) { return left.drops && !right.drops; });
}

void EditorWays::addControl(const ControlDescription &control, const ControlSpot &by, const QString &from)
{
    addAction(control.click, by, "click", from);
    addAction(control.doubleClick, by, "doubleClick", from);
    addAction(control.contextMenu, by, "rightClick", from);
}

void EditorWays::addAction(const ControlAction &action, const ControlSpot &by, const char *icon,
                           const QString &from)
{
    const QString how = QString::fromLatin1(icon);
    if (action.close) {
        const bool drops = !closesForMore(action) && canBeAccepted((*m_descriptions)[from]);
        m_ways.append({by, how, from, Does::kCloses, from, drops});
    }
    if (!action.open.isEmpty()) {
        m_ways.append({by, how, from, Does::kOpens, action.open, false});
    }
    if (!action.popup.isEmpty()) {
        m_ways.append({by, how, from, Does::kPopsUp, action.popup, false});
    }
    if (action.otherwise != nullptr) {
        addAction(*action.otherwise, by, icon, from);
    }
}

void EditorWays::addDismissals(const QString &key)
{
    const WindowDescription &window = (*m_descriptions)[key];
    const QString how = QStringLiteral("click");
    const ControlSpot by{key, ControlSpot::dismiss()};
    for (const PopupDescription &popup : window.popups) {
        m_ways.append({by, how, popup.name, Does::kCloses, popup.name, false});
    }
    if (window.closesAfterMs > 0) {
        // It goes by itself, and nobody can close it sooner.
        m_ways.append({by, QStringLiteral("wait"), key, Does::kCloses, key, false});
    } else if (window.kind == Kind::kWindow && key != WindowBuilder::mainKey()) {
        m_ways.append({by, how, key, Does::kCloses, key, canBeAccepted(window)});
    }
}

bool EditorWays::canCause(const ControlSpot &spot, const Condition &condition) const
{
    switch (condition.type()) {
    case Condition::Type::kNext:
    case Condition::Type::kYesNo:
    case Condition::Type::kWait:
        return false;
    case Condition::Type::kWindowState:
        return hasWay(spot, condition.value() == QLatin1String("open") ? Does::kOpens : Does::kCloses,
                      condition.target());
    case Condition::Type::kPopup:
        return hasWay(spot, Does::kPopsUp, condition.target());
    default:
        return reports(spot, condition);
    }
}

bool EditorWays::reports(const ControlSpot &spot, const Condition &condition) const
{
    using Type = Condition::Type;
    const ControlDescription *control = controlOf(*m_descriptions, spot);
    if (control == nullptr) {
        return false;
    }
    const auto is = [control](const char *type) {
        return control->type == QLatin1String(type);
    };
    const auto isPart = [&spot](const QString &number) {
        return spot.part < 0 || QString::number(spot.part) == number;
    };
    switch (condition.type()) {
    case Type::kList:
        return is("list") && isPart(condition.target());
    case Type::kTabView:
        return is("tabs") && isPart(condition.value());
    case Type::kAction:
        return control->actionName == condition.target();
    case Type::kSpinBox:
        return is("spinBox");
    case Type::kComboBox:
        return is("comboBox") && control->isCalled(condition.target());
    case Type::kChecked:
        return is("checkBox") && control->isCalled(condition.target());
    case Type::kTextLength:
        return (is("lineEdit") || is("textEdit")) && control->isCalled(condition.target());
    case Type::kRadioButton:
        return is("radioButton") &&
               QString::number(control->own.object.value(QLatin1String("index")).toInt(-1)) ==
                   condition.value();
    case Type::kMouseEvent:
        return control->target() == condition.target();
    case Type::kMenuEvent:
        return is("map") && control->target() == condition.target();
    case Type::kPressed:
        return is("map");
    default:
        return false;
    }
}

bool EditorWays::hasWay(const ControlSpot &spot, Way::Does does, const QString &windowKey) const
{
    return std::any_of(m_ways.cbegin(), m_ways.cend(), [&](const Way &way) {
        return way.does == does && way.windowKey == windowKey && way.by.isLike(spot);
    });
}

bool EditorWays::addsUp(const ControlSpot &spot) const
{
    const ControlDescription *const control = controlOf(*m_descriptions, spot);
    return control != nullptr && control->type == QLatin1String("button");
}

QString EditorWays::windowOf(const QString &key) const
{
    if (!m_descriptions->contains(key)) {
        return key == QLatin1String("Popup") ? key : QString();
    }
    const WindowDescription &window = (*m_descriptions)[key];
    switch (window.kind) {
    case Kind::kWindow:
        return key;
    case Kind::kPart:
        return window.owner;
    case Kind::kPopup:
        return QStringLiteral("Popup");
    case Kind::kArea:
        break;
    }
    return {};
}
