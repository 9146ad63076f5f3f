#include "lesson/Condition.h"

#include "lesson/EditorEvent.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace {

using Type = Condition::Type;

/// One type of condition. The whole grammar is the table of these: a new type is a row, and a case in isMetBy
/// where equality of target and value is not what meets it.
struct Form
{
    const char *word;
    Type type;
    /// What stands behind the word, with its comma; groups 1 and 2 are target and value. Nine digits fit an
    /// int.
    const char *rest;
    const char *example;
    bool ofControl;
    /// What the example alone does not tell; may be empty.
    const char *remark;
};

constexpr std::array<Form, 16> kForms = {{
    {"click", Type::kNext, ",?", "click,", false, ""},
    {"windowState", Type::kWindowState, ",(\\w+),(open|close)", "windowState,Copying,close", false, ""},
    {"list", Type::kList, ",(\\d{1,9})", "list,2", true, ""},
    {"action", Type::kAction, ",(\\w+),(|open|close)", "action,fileSave,close", false,
     "the last word is empty, open or close"},
    {"tabView", Type::kTabView, ",(tabview),(\\d{1,9})", "tabView,tabview,1", true, ""},
    {"yesNo", Type::kYesNo, "", "yesNo", false, ""},
    {"spinBox", Type::kSpinBox, ",(=),(-?\\d{1,9}(?: \\S+)?)", "spinBox,=,35 %", true, ""},
    {"comboBox", Type::kComboBox, ",(\\w+),(\\d{1,9})", "comboBox,moveType,1", true, ""},
    {"checked", Type::kChecked, ",(\\w+),([01])", "checked,directionFix,1", true, ""},
    {"popup", Type::kPopup, ",(\\w+)", "popup,MapPopup", false, ""},
    {"mouseEvent", Type::kMouseEvent, ",(\\w+),(click)", "mouseEvent,Map,click", false, ""},
    {"radioButton", Type::kRadioButton, ",(RadioButton),(\\d{1,9})", "radioButton,RadioButton,8", true, ""},
    {"pressed", Type::kPressed, ",(0),(0)", "pressed,0,0", false, ""},
    {"menuEvent", Type::kMenuEvent, ",(\\w+),(click)", "menuEvent,Map,click", false, ""},
    {"wait", Type::kWait, "(?:,(\\d{0,9}))?", "wait,1000", false, "the number is of milliseconds"},
    {"textLength", Type::kTextLength, ",(\\w+),(\\d{1,9})", "textLength,name,4", true,
     "the number is of characters, at least"},
}};

template<typename Predicate>
const Form *formWith(Predicate predicate)
{
    const auto *const form = std::find_if(kForms.begin(), kForms.end(), predicate);
    return form == kForms.end() ? nullptr : form;
}

const Form &formOf(Type type)
{
    return *formWith([type](const Form &form) { return form.type == type; });
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

void tell(QString *problem, const QString &text)
{
    if (problem != nullptr) {
        *problem = text;
    }
}

QString wrongForm(const QString &text, const Form &form)
{
    QString sentence =
        QStringLiteral("\"%1\" does not have the form of \"%2\"").arg(text, QLatin1String(form.example));
    if (*form.remark != '\0') {
        sentence += QStringLiteral("; ") + QLatin1String(form.remark);
    }
    return sentence;
}

} // namespace

QString Condition::wordOf(const QString &text)
{
    return text.section(QLatin1Char(','), 0, 0);
}

std::optional<Condition> Condition::parse(const QString &text, QString *problem)
{
    Condition condition;
    if (text.isEmpty()) {
        return condition;
    }
    const QString word = wordOf(text);
    const Form *const form = formWith([&word](const Form &one) { return word == QLatin1String(one.word); });
    if (form == nullptr) {
        tell(problem, QStringLiteral("\"%1\" is not a condition type").arg(word));
        return {};
    }
    const QRegularExpression rest(QRegularExpression::anchoredPattern(QLatin1String(form->rest)));
    const QRegularExpressionMatch match = rest.match(text.mid(word.size()));
    if (!match.hasMatch()) {
        tell(problem, wrongForm(text, *form));
        return {};
    }
    condition.m_type = form->type;
    condition.m_target = match.captured(1);
    condition.m_value = match.captured(2);
    return condition;
}

bool Condition::isOfControl() const
{
    return formOf(m_type).ofControl;
}

int Condition::waitMs() const
{
    const int ms = m_target.toInt();
    return ms > 0 ? ms : kDefaultWaitMs;
}

bool Condition::isMetBy(const EditorEvent &event, const QString &windowKey) const
{
    if (m_type == Type::kNext || m_type == Type::kYesNo || m_type == Type::kWait ||
        event.type != QLatin1String(formOf(m_type).word)) {
        return false;
    }
    if (isOfControl() && !isAnyWindow(windowKey) && !event.windowKey.isEmpty() &&
        event.windowKey != windowKey && event.around != windowKey) {
        return false;
    }
    switch (m_type) {
    case Type::kAction:
        return event.target == m_target && (m_value.isEmpty() || event.value == m_value);
    case Type::kSpinBox:
        return withoutBlanks(event.value) == withoutBlanks(m_value);
    case Type::kMouseEvent:
        return event.target == m_target && (event.value == m_value || event.value == QLatin1String("drag"));
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
