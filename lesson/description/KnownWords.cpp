#include "lesson/description/KnownWords.h"

#include <QJsonArray>

#include <algorithm>

namespace {

using Type = Condition::Type;

bool isTextField(const ControlDescription &control)
{
    return control.type == QLatin1String("lineEdit") || control.type == QLatin1String("textEdit");
}

bool hasTab(const ControlDescription &control, int tab)
{
    const QJsonValue tabs = control.own.object.value(QStringLiteral("tabs"));
    // Without texts of its own it has as many tabs as there are rows in its source.
    return control.type == QLatin1String("tabs") && (!tabs.isArray() || tab < tabs.toArray().size());
}

bool canShow(const ControlDescription &control, const QString &text)
{
    const QString number = text.section(QLatin1Char(' '), 0, 0);
    const QString suffix = text.section(QLatin1Char(' '), 1);
    const QJsonArray range = control.own.object.value(QStringLiteral("range")).toArray();
    return control.type == QLatin1String("spinBox") && number.toInt() >= range.at(0).toInt() &&
           number.toInt() <= range.at(1).toInt() &&
           control.own.object.value(QStringLiteral("suffix")).toString().trimmed() == suffix;
}

/// Whether the control can bring the condition about.
bool serves(const ControlDescription &control, const Condition &condition)
{
    const QString target = condition.target();
    switch (condition.type()) {
    case Type::kList:
        return control.type == QLatin1String("list");
    case Type::kTabView:
        return hasTab(control, condition.value().toInt());
    case Type::kSpinBox:
        return canShow(control, condition.value());
    case Type::kComboBox:
        return control.type == QLatin1String("comboBox") && control.isCalled(target);
    case Type::kChecked:
        return control.type == QLatin1String("checkBox") && control.isCalled(target);
    case Type::kRadioButton:
        return control.type == QLatin1String("radioButton") &&
               control.own.object.value(QStringLiteral("index")).toInt(-1) == condition.value().toInt();
    case Type::kTextLength:
        return isTextField(control) && control.isCalled(target);
    default:
        return true;
    }
}

/// The control that is missing, in words.
QString wanted(const Condition &condition)
{
    switch (condition.type()) {
    case Type::kList:
        return QStringLiteral("no list");
    case Type::kTabView:
        return QStringLiteral("no row of tabs with a tab %1").arg(condition.value());
    case Type::kSpinBox:
        return QStringLiteral("no number field that can show \"%1\"").arg(condition.value());
    case Type::kComboBox:
        return QStringLiteral("no combo box \"%1\"").arg(condition.target());
    case Type::kChecked:
        return QStringLiteral("no check box \"%1\"").arg(condition.target());
    case Type::kRadioButton:
        return QStringLiteral("no radio button with the index %1").arg(condition.value());
    default:
        return QStringLiteral("no text field \"%1\"").arg(condition.target());
    }
}

QString controlProblem(const Condition &condition, const QString &windowKey, const DescriptionSet &windows)
{
    // The keys of the screen and of the editor as a whole take any window.
    if (!windows.contains(windowKey) || windows[windowKey].kind == WindowDescription::Kind::kArea) {
        return {};
    }
    const QVector<ControlDescription> &controls = windows[windowKey].controls;
    const bool isServed =
        std::any_of(controls.cbegin(), controls.cend(),
                    [&condition](const ControlDescription &control) { return serves(control, condition); });
    return isServed ? QString()
                    : QStringLiteral("the window %1 has %2; lesson-position %1 lists its controls")
                          .arg(windowKey, wanted(condition));
}

bool hasTarget(const DescriptionSet &windows, const QString &target)
{
    const QStringList keys = windows.keys();
    return std::any_of(keys.cbegin(), keys.cend(), [&](const QString &key) {
        const QVector<ControlDescription> &controls = windows[key].controls;
        return std::any_of(controls.cbegin(), controls.cend(), [&target](const ControlDescription &control) {
            return control.target() == target;
        });
    });
}

} // namespace

QString KnownWords::windowProblem(const QString &windowKey, const DescriptionSet &windows)
{
    return windows.contains(windowKey) ? QString()
                                       : QStringLiteral("no window has the key \"%1\"").arg(windowKey);
}

QString KnownWords::conditionProblem(const Condition &condition, const QString &windowKey,
                                     const DescriptionSet &windows)
{
    const QString target = condition.target();
    switch (condition.type()) {
    case Type::kWindowState:
        return windowProblem(target, windows);
    case Type::kAction:
        return !windows.actionStates(target).isEmpty()
                   ? QString()
                   : QStringLiteral("no window has the action \"%1\"").arg(target);
    case Type::kPopup:
        return windows.popup(target) != nullptr
                   ? QString()
                   : QStringLiteral("no context menu is called \"%1\"").arg(target);
    case Type::kMouseEvent:
    case Type::kMenuEvent:
        return hasTarget(windows, target) ? QString()
                                          : QStringLiteral("no window has the target \"%1\"").arg(target);
    default:
        return condition.isOfControl() ? controlProblem(condition, windowKey, windows) : QString();
    }
}
