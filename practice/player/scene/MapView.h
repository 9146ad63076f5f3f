#pragma once

#include "player/game/Screen.h"
#include "player/scene/Frame.h"
#include "player/script/World.h"

namespace player {

/// Which part of the map is seen, and what of it.
class MapView
{
public:
    /// The hero is in the middle again; the map's name is shown.
    void enter(const MapData *map);
    void tick();
    /// @p speed is 1 to 6.
    void scroll(int direction, int cells, int speed);
    [[nodiscard]] bool isScrolling() const { return m_x.isSliding() || m_y.isSliding(); }

    void show(const World &world, const Character &hero, Frame *frame) const;

private:
    [[nodiscard]] QPointF origin(const MapData &map, const Character &hero) const;

    /// How far the view is moved away from the hero, in cells.
    Sliding m_x;
    Sliding m_y;
    QString m_name;
    int m_nameTicks = 0;
};

} // namespace player
