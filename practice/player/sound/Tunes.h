#pragma once

#include "player/game/Sound.h"

#include <QByteArray>

namespace player {

/// The music and sounds of a game, made up from their names: short tunes and noises of our own, the same each
/// time. They are files of the WAV format: two channels, 16 bits.
namespace Tunes {

constexpr int kSamplesPerSecond = 22050;

/// A tune that can be played again and again without a gap.
[[nodiscard]] QByteArray music(const Sound &sound);
/// A noise of a second at most.
[[nodiscard]] QByteArray noise(const Sound &sound);

} // namespace Tunes

} // namespace player
