#pragma once

#include <QRectF>

class QPainter;

namespace player {

/// Draws what somebody feels, 1 to 10 as the command has them, in a bubble that fills @p rect and points
/// down. Nothing for another number.
void drawBalloon(QPainter *painter, int balloon, const QRectF &rect);

} // namespace player
