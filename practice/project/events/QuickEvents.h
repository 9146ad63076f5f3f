#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>

/// Whole events for what every game needs, made from a short form. @p texts are what they say, in the
/// person's language.
namespace QuickEvents {

using Texts = QMap<QString, QString>;

/// Names of the kinds: "transfer", "inn", "treasure", "base".
[[nodiscard]] QStringList kinds();

/// What the form of a kind says at first.
[[nodiscard]] QJsonObject form(const QString &kind);

/// The event; it has no cell yet. Empty for an unknown kind.
///
///     transfer   to "map", "x", "y", looking in "direction"; "image"
///     inn        asks "price" for a night; "image"
///     treasure   "what" (0 gold, 1 an item, 2 a weapon, 3 a piece of armor), its "number" or "amount"; once
///     only base       a place to rest for nothing, and to save; "image"
[[nodiscard]] QJsonObject made(const QString &kind, const QJsonObject &form, const Texts &texts);

} // namespace QuickEvents
