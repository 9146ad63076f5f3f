#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

/// Reads of JSON that take what is missing or of another type as 0, empty or false.
namespace player::JsonRead {

[[nodiscard]] inline QJsonValue member(const QJsonValue &object, const char *key)
{
    return object.toObject().value(QLatin1String(key));
}

[[nodiscard]] inline int number(const QJsonValue &object, const char *key, int otherwise = 0)
{
    return member(object, key).toInt(otherwise);
}

[[nodiscard]] inline QString text(const QJsonValue &object, const char *key)
{
    return member(object, key).toString();
}

[[nodiscard]] inline bool flag(const QJsonValue &object, const char *key, bool otherwise = false)
{
    return member(object, key).toBool(otherwise);
}

[[nodiscard]] inline QJsonArray list(const QJsonValue &object, const char *key)
{
    return member(object, key).toArray();
}

} // namespace player::JsonRead
