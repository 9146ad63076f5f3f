#pragma once

#include <QJsonObject>

/// What makes one JSON object out of another, as JSON: of two states of an editor that follow each other most
/// is the same.
///
/// Arrays are kept whole where they differ.
namespace JsonChange {

/// Empty when nothing differs.
[[nodiscard]] QJsonObject between(const QJsonObject &before, const QJsonObject &after);

/// The later object, given the earlier one.
[[nodiscard]] QJsonObject applied(const QJsonObject &before, const QJsonObject &change);

} // namespace JsonChange
