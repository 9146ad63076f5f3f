#pragma once

#include "player/game/GameData.h"
#include "player/view/Artwork.h"
#include "player/view/ScreenScale.h"

class QPainter;

namespace player {

/// Draws who stands and walks on the map, and who fights in a battle. The painter stands at the corner of the
/// game's screen.
class SpritePainter
{
public:
    /// @p artwork outlives the painter.
    explicit SpritePainter(Artwork *artwork);

    void paint(QPainter *painter, const Frame &frame, const GameData &data, const ScreenScale &scale);
    void paintBattlers(QPainter *painter, const Frame &frame, const GameData &data, const ScreenScale &scale);

    /// What is seen above the panels.
    static void paintAnimations(QPainter *painter, const Frame &frame, const GameData &data,
                                const ScreenScale &scale);

private:
    void paintSprite(QPainter *painter, const Sprite &sprite, const QRect &cell, int lift);
    void paintBattler(QPainter *painter, const FrameBattler &battler, const QRect &place,
                      const ScreenScale &scale, qint64 tick);
    /// The picture as it looks in this direction, where there is such a picture.
    [[nodiscard]] QPixmap facing(const QString &name, int direction, const QSize &size);

    Artwork *m_artwork;
};

} // namespace player
