#include "tool/SourceArray.h"

namespace {

void replaceFirst(QString &text, const QString &before, QLatin1Char after)
{
    const int place = text.indexOf(before);
    if (place >= 0) {
        text.replace(place, before.size(), after);
    }
}

} // namespace

QString sourceArray(QString text, QLatin1String name)
{
    replaceFirst(text, QLatin1String("var ") + name + QLatin1String(" = ["), QLatin1Char('['));
    replaceFirst(text, QStringLiteral("];"), QLatin1Char(']'));
    return text;
}
