#include "player/game/MapData.h"

#include <QRect>

#include <algorithm>

namespace player {

bool MapData::contains(const QPoint &cell) const
{
    return QRect(QPoint(), size).contains(cell);
}

int MapData::tile(int layer, const QPoint &cell) const
{
    return contains(cell) && layer >= 0 && layer < kLayers
               ? tiles.value((layer * size.height() + cell.y()) * size.width() + cell.x())
               : 0;
}

bool MapData::isFloor(const QPoint &cell) const
{
    return contains(cell) && floor.value(cell.y() * size.width() + cell.x());
}

bool MapData::isCounter(const QPoint &cell) const
{
    return contains(cell) && counter.value(cell.y() * size.width() + cell.x());
}

const MapEvent *MapData::event(int number) const
{
    const auto found = std::find_if(events.cbegin(), events.cend(),
                                    [number](const MapEvent &event) { return event.id == number; });
    return found == events.cend() ? nullptr : &*found;
}

} // namespace player
