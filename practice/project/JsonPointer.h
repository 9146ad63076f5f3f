#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <optional>

/// Places in a JSON value, such as "/3/name": the member "name" of the fourth element. A word with a slash or
/// a tilde in it has them as "~1" and "~0"; the empty pointer is the whole value. Behind an object with one
/// member, such as {"hp": 30}, "@name" is the name of that member and "@value" its value. "@there" at the
/// end is whether there is anything; it cannot be changed.
namespace JsonPointer {

/// The words of @p pointer; nothing when it is none: it has to be empty or to begin with a slash, and a tilde
/// to be followed by 0 or 1.
[[nodiscard]] std::optional<QStringList> words(const QString &pointer);

/// The word as it stands in a pointer.
[[nodiscard]] QString escaped(const QString &word);

/// What stands at @p pointer; undefined when nothing does.
[[nodiscard]] QJsonValue value(const QJsonValue &root, const QString &pointer);

/// @p root with @p value at @p pointer. A member that is not there yet is added, an element behind the last
/// one, too ("-" or its number); an undefined @p value takes away what is there. A new "@name" keeps the
/// value; in an object without members that is 0. Nothing when the way to the place leads through something
/// that is not there.
[[nodiscard]] std::optional<QJsonValue> with(const QJsonValue &root, const QString &pointer,
                                             const QJsonValue &value);

/// The same, but that members on the way which are not there, or null, become objects.
[[nodiscard]] std::optional<QJsonValue> withWay(const QJsonValue &root, const QString &pointer,
                                                const QJsonValue &value);

} // namespace JsonPointer
