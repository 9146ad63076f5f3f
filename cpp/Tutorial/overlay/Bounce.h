#pragma once

#include <QtGlobal>

/// How far below the window's top the upright arrow is drawn, in pixels, @p elapsedMs after the bounce began:
/// 16 for the first half of each 2 seconds, then up to 0 and back.
[[nodiscard]] float bounceOffset(qint64 elapsedMs);

/// The same for the arrow that is drawn upside down: 6 less, so from 10 to -6.
[[nodiscard]] float upsideDownBounceOffset(qint64 elapsedMs);
