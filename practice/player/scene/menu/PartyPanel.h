#pragma once

#include "player/scene/ListPanel.h"

namespace player {

struct Actor;
struct GameData;
struct GameState;

/// The party as the menu shows it.
namespace PartyPanel {

/// The part of the screen beside the commands of the menu.
extern const QRect kRect;

/// One row for each who fights: name, level, points and states; the value is the place in the party.
[[nodiscard]] QVector<ListRow> rows(const GameState &state, const GameData &data);
/// Without rows: name and level, with gauges.
[[nodiscard]] Panel status(const GameState &state, const GameData &data);
/// Level, points and strengths, one line each. With @p before, what would change is coloured, and has an
/// arrow.
[[nodiscard]] QVector<PanelLine> figures(const Actor &actor, const GameData &data,
                                         const Actor *before = nullptr);

} // namespace PartyPanel

} // namespace player
