#include "make-patch/DataFile.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>

#include <algorithm>

namespace {

/// @p offset is in bytes; the column that comes of it is in characters.
QString placeOf(const QByteArray &text, int offset)
{
    const QByteArray before = text.left(std::max(offset, 0));
    const QString line = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1));
    return QStringLiteral("line %1, column %2").arg(before.count('\n') + 1).arg(line.size() + 1);
}

} // namespace

bool DataFile::isJson(const std::string &text, QString &place, QString &reason)
{
    const QByteArray bytes = QByteArray::fromRawData(text.data(), int(text.size()));
    QJsonParseError error;
    QJsonDocument::fromJson(bytes, &error);
    if (error.error == QJsonParseError::NoError) {
        return true;
    }
    // The parser takes no number or text that stands alone.
    if (QJsonDocument::fromJson('[' + bytes + ']').array().size() == 1) {
        return true;
    }
    place = placeOf(bytes, error.offset);
    reason = bytes.trimmed().isEmpty() ? QStringLiteral("it is empty") : error.errorString();
    return false;
}
