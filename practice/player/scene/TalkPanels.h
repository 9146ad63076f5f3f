#pragma once

#include "player/scene/Frame.h"
#include "player/script/Talk.h"

/// Where the panels of messages and answers stand, in game pixels.
namespace player::TalkPanels {

constexpr int kMargin = 8;
constexpr int kMessageHeight = 120;
constexpr int kRowHeight = 24;
constexpr int kPadding = 12;
constexpr int kLinesOfPage = 4;
/// What a face takes of each line.
constexpr int kFace = 108;

/// @p place 0 top, 1 middle, 2 bottom.
[[nodiscard]] QRect message(int place);
/// Beside a message at @p messagePlace; @p place 0 left, 1 middle, 2 right.
[[nodiscard]] QRect choices(const QStringList &texts, int place, int messagePlace);
[[nodiscard]] QRect number(int digits, int messagePlace);
[[nodiscard]] QRect items(int messagePlace);
[[nodiscard]] QRect all();
/// How long a line of text in a panel may be.
[[nodiscard]] int lineOf(const QRect &panel);

} // namespace player::TalkPanels
