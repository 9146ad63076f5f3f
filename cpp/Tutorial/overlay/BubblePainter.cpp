#include "Tutorial/overlay/BubblePainter.h"

#include "Tutorial/overlay/Bounce.h"
#include "Tutorial/overlay/BubbleGeometry.h"
#include "Tutorial/overlay/IndicatorPictures.h"
#include "Tutorial/overlay/IndicatorState.h"

#include <QPainter>

namespace {

void erase(QPainter &painter, const QSize &window, const IndicatorState &state, const QSize &arrow)
{
    const QColor nothing(0, 0, 0, 0);
    if (state.repaintAll) {
        painter.fillRect(QRect(QPoint(0, 0), window), nothing);
        return;
    }
    const bool mirror = state.placement.mirror;
    painter.fillRect(BubbleGeometry::arrowRect(mirror, arrow), nothing);
    painter.fillRect(BubbleGeometry::iconRect(mirror, arrow.width()), nothing);
}

void drawArrow(QPainter &painter, const Placement &placement, const QPixmap &arrow, qint64 elapsedMs)
{
    const bool mirror = placement.mirror;
    const bool upsideDown = placement.upsideDown;
    const float bounce = upsideDown ? upsideDownBounceOffset(elapsedMs) : bounceOffset(elapsedMs);
    painter.save();
    painter.translate(mirror ? arrow.width() + BubbleGeometry::kHintWidth : 0,
                      upsideDown ? arrow.height() : 0);
    painter.scale(mirror ? -1 : 1, upsideDown ? -1 : 1);
    painter.drawPixmap(0, static_cast<int>(bounce), arrow);
    painter.restore();
}

} // namespace

void paintBubble(QPainter &painter, const QSize &window, const IndicatorState &state,
                 const IndicatorPictures &pictures, qint64 elapsedMs)
{
    const QPixmap &arrow = pictures.arrow;
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    erase(painter, window, state, arrow.size());
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    // On a scaled screen the pictures are enlarged; unscaled, smoothing would only blur the flipped arrow.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, painter.combinedTransform().m11() != 1.0);
    if (state.arrowVisible) {
        drawArrow(painter, state.placement, arrow, elapsedMs);
    }
    if (const QPixmap *const icon = pictures.icon(state.iconKind)) {
        painter.drawPixmap(BubbleGeometry::iconPlace(state.placement.mirror, arrow.width(), icon->width()),
                           *icon);
    }
}
