#include "SampleGround.h"

#include "SampleEvents.h"

#include <QFile>
#include <QSet>

#include <tuple>

namespace {

using sample::objectsIn;

constexpr int kLayers = 3;

/// The drawings of the tiles in the order of their numbers, the first one being tile 1.
QStringList drawings()
{
    QFile file(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/data/project.json"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QStringList names;
    const QJsonArray tabs = objectsIn(QJsonDocument::fromJson(file.readAll()).object(), "tileTabs");
    for (const QJsonValue &tab : tabs) {
        const QJsonArray tiles = objectsIn(tab, "tiles");
        for (const QJsonValue &tile : tiles) {
            names.append(tile.toObject().value(QLatin1String("drawing")).toString());
        }
    }
    return names;
}

} // namespace

namespace sample {

bool operator<(const Place &left, const Place &right)
{
    return std::tie(left.map, left.x, left.y) < std::tie(right.map, right.x, right.y);
}

bool operator==(const Place &left, const Place &right)
{
    return left.map == right.map && left.x == right.x && left.y == right.y;
}

Place stepped(const Place &place, int direction)
{
    switch (direction) {
    case 1:
        return {place.map, place.x, place.y + 1};
    case 2:
        return {place.map, place.x - 1, place.y};
    case 3:
        return {place.map, place.x + 1, place.y};
    case 4:
        return {place.map, place.x, place.y - 1};
    default:
        return place;
    }
}

QVector<Place> besides(const Place &place)
{
    return {stepped(place, 1), stepped(place, 2), stepped(place, 3), stepped(place, 4)};
}

Ground::Ground(const Files &files)
{
    const QStringList names = mapFiles(files);
    for (const QString &name : names) {
        m_boards.insert(mapNumber(name), readBoard(files.value(name).object()));
    }
}

bool Ground::canWalk(const Place &place) const
{
    return kind(place) != Kind::kWall;
}

bool Ground::isDoor(const Place &place) const
{
    return kind(place) == Kind::kDoor;
}

bool Ground::isOnEdge(const Place &place) const
{
    const Board board = m_boards.value(place.map);
    return place.x == 0 || place.y == 0 || place.x == board.width - 1 || place.y == board.height - 1;
}

Ground::Kind Ground::kindOf(int tile)
{
    static const QStringList names = drawings();
    static const QSet<QString> floors = {QStringLiteral("grass"),     QStringLiteral("tallGrass"),
                                         QStringLiteral("path"),      QStringLiteral("sand"),
                                         QStringLiteral("floor"),     QStringLiteral("snow"),
                                         QStringLiteral("flowers"),   QStringLiteral("reeds"),
                                         QStringLiteral("mushrooms"), QStringLiteral("bridge")};
    const QString name = names.value(tile - 1);
    if (name == QLatin1String("door")) {
        return Kind::kDoor;
    }
    return floors.contains(name) ? Kind::kFloor : Kind::kWall;
}

Ground::Board Ground::readBoard(const QJsonObject &map)
{
    Board board;
    board.width = number(map, "width");
    board.height = number(map, "height");
    const QJsonArray data = objectsIn(map, "data");
    const int cells = board.width * board.height;
    for (int cell = 0; cell < cells; ++cell) {
        int uppermost = 0;
        for (int layer = 0; layer < kLayers; ++layer) {
            const int tile = data.at(layer * cells + cell).toInt();
            uppermost = tile != 0 ? tile : uppermost;
        }
        board.cells.append(kindOf(uppermost));
    }
    return board;
}

Ground::Kind Ground::kind(const Place &place) const
{
    const auto board = m_boards.constFind(place.map);
    if (board == m_boards.constEnd() || place.x < 0 || place.y < 0 || place.x >= board->width ||
        place.y >= board->height) {
        return Kind::kWall;
    }
    return board->cells.at(place.y * board->width + place.x);
}

} // namespace sample
