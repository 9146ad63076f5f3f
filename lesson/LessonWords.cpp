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

} // namespace LessonWords
