#pragma once

#include "player/run/WordTable.h"

#include <functional>

/// What the words that expect something have in common.
namespace player::Expecting {

/// So many ticks, ten seconds of the game, something is waited for that does not hold at once.
constexpr int kPatience = 10 * GameState::kTicksPerSecond;

/// Waits until @p now compares with @p wanted as @p sign says: "=", "!=", "<", ">", "<=" or ">=".
[[nodiscard]] Seen number(Hand *hand, const QString &sign, const QString &wanted,
                          const std::function<int()> &now);
/// Waits until @p now is "on" or "off", whichever is wanted.
[[nodiscard]] Seen flag(Hand *hand, const QString &wanted, const std::function<bool()> &now);
/// Waits until @p now is this text.
[[nodiscard]] Seen text(Hand *hand, const QString &wanted, const std::function<QString()> &now);
/// Waits until @p now holds; what is told of it is all that can be read on the screen.
[[nodiscard]] Seen onScreen(Hand *hand, const std::function<bool()> &now);

} // namespace player::Expecting
