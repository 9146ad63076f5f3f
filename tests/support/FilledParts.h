#pragma once

#include <QString>
#include <QStringList>

/// What stands between the separators in @p text, without what is empty. Qt 5.12 and Qt 6 have no common word
/// for that.
inline QStringList filledParts(const QString &text, QChar separator)
{
    QStringList parts = text.split(separator);
    parts.removeAll(QString());
    return parts;
}
