#pragma once

#include "SampleFiles.h"

#include <QVector>

namespace sample {

/// A cell of a map.
struct Place
{
    int map = 0;
    int x = 0;
    int y = 0;
};
bool operator<(const Place &left, const Place &right);
bool operator==(const Place &left, const Place &right);

/// The four cells around it, inside of the map or not.
QVector<Place> besides(const Place &place);
/// The cell that a step leads to, in a direction of the data: 1 down, 2 left, 3 right, 4 up.
Place stepped(const Place &place, int direction);

/// What the maps of a step are made of. A cell can be walked on when its uppermost tile can; outside of a map
/// nothing can.
class Ground
{
public:
    explicit Ground(const Files &files);

    bool canWalk(const Place &place) const;
    bool isDoor(const Place &place) const;
    bool isOnEdge(const Place &place) const;

private:
    enum class Kind { kWall, kFloor, kDoor };

    struct Board
    {
        int width = 0;
        int height = 0;
        /// Row by row.
        QVector<Kind> cells;
    };

    static Kind kindOf(int tile);
    static Board readBoard(const QJsonObject &map);
    Kind kind(const Place &place) const;

    QMap<int, Board> m_boards;
};

} // namespace sample
