#include "runner/Condition.h"

#include <array>

namespace {

using Type = Condition::Type;

struct Form
{
    const char *word;
    Type type;
    /// How many fields stand behind the word.
    int fewest;
    int most;
    /// Which of them (1, 2) is a number; 0 for none.
    int number;
    /// It is about a control of the step's window.
    bool ofControl;
};

constexpr std::array<Form, 16> kForms = {{
    {"click", Type::kNext, 0, 1, 0, false},
    {"yesNo", Type::kYesNo, 0, 1, 0, false},
    {"wait", Type::kWait, 0, 1, 1, false},
    {"windowState", Type::kWindowState, 2, 2, 0, false},
    {"list", Type::kList, 1, 1, 1, true},
    {"action", Type::kAction, 1, 2, 0, false},
    {"tabView", Type::kTabView, 2, 2, 2, true},
    {"spinBox", Type::kSpinBox, 2, 2, 0, true},
    {"comboBox", Type::kComboBox, 2, 2, 2, true},
    {"checked", Type::kChecked, 2, 2, 2, true},
    {"popup", Type::kPopup, 1, 1, 0, false},
    {"mouseEvent", Type::kMouseEvent, 2, 2, 0, false},
    {"menuEvent", Type::kMenuEvent, 2, 2, 0, false},
    {"radioButton", Type::kRadioButton, 2, 2, 2, true},
    {"pressed", Type::kPressed, 2, 2, 0, false},
    {"textLength", Type::kTextLength, 2, 2, 2, true},
}};

const Form *formOf(const QString &word)
{
    for (const Form &form : kForms) {
        if (word == QLatin1String(form.word)) {
            return &form;
        }
    }
    return nullptr;
}

const Form &formOf(Type type)
{
    for (const Form &form : kForms) {
        if (form.type == type) {
            return form;
        }
    }
    Q_UNREACHABLE();
}

bool isNumber(const QString &text)
{
    bool is = false;
    text.toInt(&is);
    return is;
}

QString withoutBlanks(QString text)
{
    text.remove(QLatin1Char(' '));
    return text;
}

bool isAnyWindow(const QString &windowKey)
{
    return windowKey.isEmpty() || windowKey == QLatin1String("ApplicationWindow");
}

} // namespace

std::optional<Condition> Condition::parse(const QString &text)
{
    QStringList fields = text.isEmpty() ? QStringList{QStringLiteral("click")} : text.split(QLatin1Char(','));
    const Form *form = formOf(fields.takeFirst());
    if (form == nullptr) {
        return {};
    }
    // "click," and "wait," end in a comma that says nothing.
    if (form->fewest == 0 && fields.size() == 1 && fields.constFirst().isEmpty()) {
        fields.clear();
    }
    if (fields.size() < form->fewest || fields.size() > form->most) {
        return {};
    }
    if (form->number > 0 && fields.size() >= form->number && !isNumber(fields.at(form->number - 1))) {
        return {};
    }
    Condition condition;
    condition.m_type = form->type;
    condition.m_target = fields.value(0);
    condition.m_value = fields.value(1);
    switch (form->type) {
    case Type::kWindowState:
        if (condition.m_value != QLatin1String("open") && condition.m_value != QLatin1String("close")) {
            return {};
        }
        break;
    case Type::kSpinBox:
        if (condition.m_target != QLatin1String("=") || condition.m_value.isEmpty()) {
            return {};
        }
        break;
    default:
        break;
    }
    return condition;
}

int Condition::waitMs() const
{
    const int ms = m_target.toInt();
    return ms > 0 ? ms : kDefaultWaitMs;
}

bool Condition::isMetBy(const EditorEvent &event, const QString &windowKey) const
{
    const Form &form = formOf(m_type);
    if (m_type == Type::kNext || m_type == Type::kYesNo || m_type == Type::kWait ||
        event.type != QLatin1String(form.word)) {
        return false;
    }
    if (form.ofControl && !isAnyWindow(windowKey) && !event.windowKey.isEmpty() &&
        event.windowKey != windowKey) {
        return false;
    }
    switch (m_type) {
    case Type::kAction:
        return event.target == m_target && (m_value.isEmpty() || event.value == m_value);
    case Type::kSpinBox:
        return withoutBlanks(event.value) == withoutBlanks(m_value);
    case Type::kTextLength:
        return event.target == m_target && event.value.toInt() >= m_value.toInt();
    default:
        return event.target == m_target && event.value == m_value;
    }
}

bool Condition::holds(const QStringList &openWindows) const
{
    return m_type == Type::kWindowState &&
           openWindows.contains(m_target) == (m_value == QLatin1String("open"));
}
