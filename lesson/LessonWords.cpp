#include "lesson/LessonWords.h"

#include <QRegularExpression>

namespace LessonWords {

QStringList locales()
{
    return {QStringLiteral("en_US"), QStringLiteral("ja_JP"), QStringLiteral("zh_CN")};
}

int iconKind(const QString &name)
{
    int kind = 0;
    for (const char *const icon : kIcons) {
        if (name == QLatin1String(icon)) {
            break;
        }
        ++kind;
    }
    return kind;
}

QString presetStep(const QString &command)
{
    static const QRegularExpression form(QStringLiteral("^presetData,(step[1-9][0-9]{0,8})$"));
    return form.match(command).captured(1);
}

bool saysDrag(const QString &hint)
{
    // Not "dragon".
    static const QRegularExpression words(QStringLiteral("\\bdrag(ging)?\\b|\u30C9\u30E9\u30C3\u30B0|\u62D6"),
                                          QRegularExpression::CaseInsensitiveOption);
    return hint.contains(words);
}

QString numberToType(const QString &hint)
{
    static const QRegularExpression number(QStringLiteral("-?[0-9]+"));
    return number.match(hint).captured();
}

} // namespace LessonWords
