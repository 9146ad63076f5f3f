#include "lesson-check/ControlCheck.h"

#include <QJsonArray>

#include <algorithm>

namespace {

using Type = Condition::Type;

bool isCalled(const ControlDescription &control, const QString &name)
{
    // A form's controls have the code of their command ahead.
    return control.name == name || control.name.endsWith(QLatin1Char('/') + name);
}

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
        return control.type == QLatin1String("comboBox") && isCalled(control, target);
    case Type::kChecked:
        return control.type == QLatin1String("checkBox") && isCalled(control, target);
    case Type::kRadioButton:
        return control.type == QLatin1String("radioButton") &&
               control.own.object.value(QStringLiteral("index")).toInt(-1) == condition.value().toInt();
    case Type::kTextLength:
        return isTextField(control) && isCalled(control, target);
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

} // namespace

QString controlProblem(const Condition &condition, const QString &windowKey, const DescriptionSet &windows)
{
    // The keys of the screen and of the editor as a whole take any window.
    if (!condition.isOfControl() || condition.type() == Type::kAction || !windows.contains(windowKey) ||
        windows[windowKey].kind == WindowDescription::Kind::kArea) {
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
