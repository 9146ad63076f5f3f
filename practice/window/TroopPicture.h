#pragma once

#include <QJsonArray>
#include <QPixmap>

/// The field of a battle with the enemies of a troop at their places, as large as fits into @p size, in
/// pixels. @p members are those of the troop, @p enemies the entries of the data file.
[[nodiscard]] QPixmap troopPicture(const QJsonArray &members, const QJsonArray &enemies, const QSize &size);
