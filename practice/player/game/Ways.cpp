#include "player/game/Ways.h"

#include "player/game/Direction.h"

#include <QRect>

#include <algorithm>

namespace player::Ways {

QVector<QPoint> find(const QSize &map, const QPoint &from, const QPoint &to,
                     const std::function<bool(const QPoint &)> &isFree)
{
    const QRect all(QPoint(), map);
    if (from == to || !all.contains(from) || !all.contains(to)) {
        return {};
    }
    // The direction from which a cell was reached first; it leads back.
    QVector<char> reached(map.width() * map.height(), char(kNowhere));
    const auto reachedAt = [&reached, &map](const QPoint &cell) -> char & {
        return reached[cell.y() * map.width() + cell.x()];
    };
    QVector<QPoint> open{from};
    for (int next = 0; next < open.size() && reachedAt(to) == kNowhere; ++next) {
        const QPoint at = open.at(next);
        for (int direction = kDown; direction <= kUp; ++direction) {
            const QPoint cell = at + stepTo(direction);
            if (all.contains(cell) && cell != from && reachedAt(cell) == kNowhere &&
                (cell == to || isFree(cell))) {
                reachedAt(cell) = char(direction);
                open.append(cell);
            }
        }
    }
    QVector<QPoint> way;
    if (reachedAt(to) == kNowhere) {
        return way;
    }
    for (QPoint cell = to; cell != from; cell -= stepTo(reachedAt(cell))) {
        way.append(cell);
    }
    std::reverse(way.begin(), way.end());
    return way;
}

} // namespace player::Ways
