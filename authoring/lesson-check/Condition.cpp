#include "lesson-check/Condition.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

namespace {

struct Form
{
    QString pattern; ///< of the whole text
    QString example;
};

const QHash<QString, Form> &forms()
{
    static const QHash<QString, Form> all = {
        {QStringLiteral("click"), {QStringLiteral("click,?"), QStringLiteral("click,")}},
        {QStringLiteral("windowState"),
         {QStringLiteral("windowState,\\w+,(open|close)"), QStringLiteral("windowState,Copying,close")}},
        {QStringLiteral("list"), {QStringLiteral("list,\\d+"), QStringLiteral("list,2")}},
        {QStringLiteral("action"),
         {QStringLiteral("action,\\w+,(|open|close)"), QStringLiteral("action,fileSave,close")}},
        {QStringLiteral("tabView"),
         {QStringLiteral("tabView,tabview,\\d+"), QStringLiteral("tabView,tabview,1")}},
        {QStringLiteral("yesNo"), {QStringLiteral("yesNo"), QStringLiteral("yesNo")}},
        {QStringLiteral("spinBox"),
         {QStringLiteral("spinBox,=,-?\\d+( \\S+)?"), QStringLiteral("spinBox,=,35 %")}},
        {QStringLiteral("comboBox"),
         {QStringLiteral("comboBox,\\w+,\\d+"), QStringLiteral("comboBox,moveType,1")}},
        {QStringLiteral("checked"),
         {QStringLiteral("checked,\\w+,[01]"), QStringLiteral("checked,directionFix,1")}},
        {QStringLiteral("popup"), {QStringLiteral("popup,\\w+"), QStringLiteral("popup,MapPopup")}},
        {QStringLiteral("mouseEvent"),
         {QStringLiteral("mouseEvent,\\w+,click"), QStringLiteral("mouseEvent,Map,click")}},
        {QStringLiteral("radioButton"),
         {QStringLiteral("radioButton,RadioButton,\\d+"), QStringLiteral("radioButton,RadioButton,8")}},
        {QStringLiteral("pressed"), {QStringLiteral("pressed,0,0"), QStringLiteral("pressed,0,0")}},
        {QStringLiteral("menuEvent"),
         {QStringLiteral("menuEvent,\\w+,click"), QStringLiteral("menuEvent,Map,click")}},
    };
    return all;
}

} // namespace

Condition::Condition(const QString &text)
    : m_type(text.section(QLatin1Char(','), 0, 0))
{
    const auto form = forms().constFind(m_type);
    if (form == forms().cend()) {
        m_problem = QStringLiteral("\"%1\" is not a condition type").arg(m_type);
        return;
    }
    const QRegularExpression whole(QRegularExpression::anchoredPattern(form->pattern));
    if (!whole.match(text).hasMatch()) {
        m_problem = QStringLiteral("\"%1\" does not have the form of \"%2\"").arg(text, form->example);
        if (m_type == QLatin1String("action"))
            m_problem += QStringLiteral("; the last word is empty, open or close");
    } else if (m_type == QLatin1String("windowState")) {
        m_windowKey = text.section(QLatin1Char(','), 1, 1);
    } else if (m_type == QLatin1String("action")) {
        m_action = text.section(QLatin1Char(','), 1, 1);
        m_actionState = text.section(QLatin1Char(','), 2, 2);
    }
}
