#include "lesson-check/Finding.h"

#include <QStringList>

QString Finding::toString() const
{
    QString place = file;
    if (line > 0) {
        place += QStringLiteral(":%1").arg(line);
    }
    QStringList parts;
    if (!item.isEmpty()) {
        parts.append(item);
    }
    if (!field.isEmpty()) {
        parts.append(QStringLiteral("\"%1\"").arg(field));
    }
    if (!parts.isEmpty()) {
        place += QStringLiteral(": ") + parts.join(QStringLiteral(", "));
    }
    const QString mark = kind == Kind::kNote ? QStringLiteral("note: ") : QString();
    return QStringLiteral("%1: %2%3").arg(place, mark, text);
}
