#pragma once

#include <QSize>
#include <QtGlobal>

class QPainter;
struct IndicatorPictures;
struct IndicatorState;

/// Paints the bubble's window but for the hint: the arrow @p elapsedMs after its bounce began, and the icon.
/// The window is transparent, so whatever is redrawn is erased first, and no more than that; all of @p window
/// when the state asks for it.
void paintBubble(QPainter &painter, const QSize &window, const IndicatorState &state,
                 const IndicatorPictures &pictures, qint64 elapsedMs);
