#include "player/view/ScreenScale.h"

namespace player {

ScreenScale ScreenScale::fit(const QSize &device)
{
    ScreenScale scale;
    scale.cell = qMax(1, qMin(device.width() * Frame::kCell / Frame::kWidth,
                              device.height() * Frame::kCell / Frame::kHeight));
    const QSize margins = (device - scale.size()) / 2;
    scale.corner = QPoint(margins.width(), margins.height());
    return scale;
}

QSize ScreenScale::sizeWith(int cellPixels)
{
    return {cellPixels * Frame::kWidth / Frame::kCell, cellPixels * Frame::kHeight / Frame::kCell};
}

} // namespace player
