#pragma once

#include "project/RowSources.h"
#include "project/StartData.h"

/// The enemies of a battle, whom event commands call by their places in the troop, from 0.
namespace BattleEnemies {

/// The choices of @p set, whose values are such places. Where @p list, a list of commands, belongs to a
/// troop, with the names of its members.
[[nodiscard]] QVector<Row> rows(const StartData &start, const QString &set,
                                const std::optional<DataPlace> &list, const DataLayer &layer);

} // namespace BattleEnemies
