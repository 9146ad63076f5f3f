#pragma once

#include "player/view/GroundPainter.h"
#include "player/view/PanelPainter.h"
#include "player/view/SpritePainter.h"

#include <QImage>

namespace player {

/// Draws what a frame says, and decides nothing. All of it is drawn in the pixels of the device.
class FramePainter
{
public:
    /// @p artwork outlives the painter.
    explicit FramePainter(Artwork *artwork);

    /// @p painter counts in pixels of the device, from its corner; what is left around the game's screen is
    /// black.
    void paint(QPainter *painter, const Frame &frame, const GameData &data, const QSize &device);

private:
    void paintWorld(QPainter *painter, const Frame &frame, const GameData &data, const ScreenScale &scale);
    void paintToned(QPainter *painter, const Frame &frame, const GameData &data, const ScreenScale &scale);
    void paintPictures(QPainter *painter, const Frame &frame, const ScreenScale &scale);

    Artwork *m_artwork;
    GroundPainter m_ground;
    SpritePainter m_sprites;
    PanelPainter m_panels;
    ScreenScale m_scale;
    int m_map = 0;
    /// Where the world is drawn while its colours are shifted.
    QImage m_toned;
};

} // namespace player
