#pragma once

#include "player/view/Artwork.h"
#include "player/view/ScreenScale.h"

#include <QVector>

class QPainter;

namespace player {

class PanelLayout;

/// Draws the windows of a game: messages, choices, menus and their like. The painter stands at the corner of
/// the game's screen.
class PanelPainter
{
public:
    /// @p artwork outlives the painter.
    explicit PanelPainter(Artwork *artwork);

    /// All of them, the first one at the bottom. Where one lies on another, nothing shines through. @p tick
    /// lets signs blink.
    void paintAll(QPainter *painter, const QVector<Panel> &panels, const ScreenScale &scale, qint64 tick);
    /// The time that is left, in the upper right corner.
    static void paintTimer(QPainter *painter, const QString &timer, const ScreenScale &scale);

private:
    void paint(QPainter *painter, const Panel &panel, const ScreenScale &scale, qint64 tick);
    void paintFace(QPainter *painter, const Panel &panel, const PanelLayout &layout,
                   const ScreenScale &scale);

    Artwork *m_artwork;
};

} // namespace player
