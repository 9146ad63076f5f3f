#pragma once

#include "player/game/Input.h"
#include "player/script/World.h"

#include <optional>

namespace player {

/// What the person has the hero do on the map: walk by keys, or to a clicked cell, and ask what stands there.
/// Who is clicked is followed.
class MapHero
{
public:
    explicit MapHero(World *world);

    /// The hero stands, and nothing keeps him from walking. Gives the event that begins by it; nullptr for
    /// none.
    World::Event *tick(const Input &input);
    /// The event that begins because the hero has come to stand on its cell.
    World::Event *arrive();
    void forgetWay();

private:
    World::Event *walk(int direction);
    void beginWay(const QPoint &cell);
    World::Event *followWay();
    World::Event *ask();
    /// What the action key begins there.
    [[nodiscard]] World::Event *askedAt(const QPoint &cell) const;
    [[nodiscard]] World::Event *touchedAt(const QPoint &cell) const;

    World *m_world;
    std::optional<QPoint> m_goal;
    /// Number of the event that was clicked; 0 for none.
    int m_followed = 0;
};

} // namespace player
