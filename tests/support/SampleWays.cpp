#include "SampleWays.h"

#include "SampleEvents.h"

#include <QFile>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace {

using sample::number;
using sample::objectsIn;
using sample::Place;

constexpr int kLayers = 3;
constexpr int kByAsking = 0;
constexpr int kByTouch = 1;
constexpr int kTransfer = 201;

/// The drawings of the tiles in the order of their numbers, the first one being tile 1.
QStringList drawings()
{
    QFile file(QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/windows/data/project.json"));
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

QVector<Place> besides(const Place &place)
{
    return {{place.map, place.x, place.y + 1},
            {place.map, place.x - 1, place.y},
            {place.map, place.x + 1, place.y},
            {place.map, place.x, place.y - 1}};
}

QString text(const Place &place)
{
    return QStringLiteral("(%1, %2) of map %3").arg(place.x).arg(place.y).arg(place.map);
}

/// Whether anything can happen in it.
bool hasCommands(const QJsonObject &page)
{
    return objectsIn(page, "list").size() > 1;
}

bool hasPicture(const QJsonObject &page)
{
    return !page.value(QLatin1String("image")).toString().isEmpty();
}

} // namespace

namespace sample {

bool operator<(const Place &left, const Place &right)
{
    return std::tie(left.map, left.x, left.y) < std::tie(right.map, right.x, right.y);
}

Ways::Ways(const Files &files)
{
    const QJsonObject system = files.value(QStringLiteral("System.json")).object();
    m_start = {number(system, "startMapId"), number(system, "startX"), number(system, "startY")};
    const QStringList names = mapFiles(files);
    for (const QString &name : names) {
        readMap(files, mapNumber(name));
    }
    m_reached = reachedFrom(m_start);
}

QSet<int> Ways::unreachedMaps() const
{
    const QList<int> maps = m_boards.keys();
    QSet<int> unreached;
    for (int map : maps) {
        unreached.insert(map);
    }
    for (const Place &place : m_reached) {
        unreached.remove(place.map);
    }
    return unreached;
}

QStringList Ways::findings() const
{
    QStringList findings;
    if (!canStand(m_start)) {
        findings.append(QStringLiteral("System.json: nobody can stand at the start %1").arg(text(m_start)));
    }
    const QSet<int> unreached = unreachedMaps();
    for (const Figure &figure : m_figures) {
        if (!unreached.contains(figure.place.map) && !isReached(figure)) {
            findings.append(QStringLiteral("%1: nobody gets to %2").arg(figure.event, text(figure.place)));
        }
    }
    findings += targetFindings();
    for (const auto &[from, transfer] : m_transfers) {
        findings += exitFindings(from, transfer);
    }
    return findings;
}

Ways::Ground Ways::groundOf(int tile)
{
    static const QStringList names = drawings();
    static const QSet<QString> floors = {QStringLiteral("grass"),     QStringLiteral("tallGrass"),
                                         QStringLiteral("path"),      QStringLiteral("sand"),
                                         QStringLiteral("floor"),     QStringLiteral("snow"),
                                         QStringLiteral("flowers"),   QStringLiteral("reeds"),
                                         QStringLiteral("mushrooms"), QStringLiteral("bridge")};
    const QString name = names.value(tile - 1);
    if (name == QLatin1String("door")) {
        return Ground::kDoor;
    }
    return floors.contains(name) ? Ground::kFloor : Ground::kWall;
}

void Ways::readMap(const Files &files, int id)
{
    const QJsonObject object = map(files, id);
    Board board;
    board.width = number(object, "width");
    board.height = number(object, "height");
    const QJsonArray data = objectsIn(object, "data");
    const int cells = board.width * board.height;
    for (int cell = 0; cell < cells; ++cell) {
        int uppermost = 0;
        for (int layer = 0; layer < kLayers; ++layer) {
            const int tile = data.at(layer * cells + cell).toInt();
            uppermost = tile != 0 ? tile : uppermost;
        }
        board.ground.append(groundOf(uppermost));
    }
    m_boards.insert(id, board);
    const QJsonArray events = objectsIn(object, "events");
    for (const QJsonValue &event : events) {
        if (event.isObject()) {
            readEvent(id, event.toObject());
        }
    }
}

void Ways::readEvent(int map, const QJsonObject &event)
{
    const Place place = {map, number(event, "x"), number(event, "y")};
    const QString name = QStringLiteral("%1 event %2").arg(mapFile(map)).arg(number(event, "id"));
    bool isWay = false;
    bool isFigure = false;
    bool isAsked = false;
    const QJsonArray pages = objectsIn(event, "pages");
    for (const QJsonValue &value : pages) {
        const QJsonObject page = value.toObject();
        const int trigger = number(page, "trigger");
        isWay = isWay || trigger == kByTouch;
        isFigure = isFigure || (trigger == kByAsking && hasPicture(page));
        isAsked = isAsked || (trigger == kByAsking && hasCommands(page));
        const QJsonArray list = objectsIn(page, "list");
        for (const QJsonValue &command : list) {
            const QJsonArray parameters = objectsIn(command, "parameters");
            if (trigger == kByTouch && number(command, "code") == kTransfer) {
                const Place to = {parameters.at(1).toInt(), parameters.at(2).toInt(),
                                  parameters.at(3).toInt()};
                m_transfers.insert({place, {name, to}});
            }
        }
    }
    if (isFigure && !isWay) {
        m_blocked.insert(place);
    }
    if (isWay || isAsked) {
        m_figures.append({name, place, isWay});
    }
}

Ways::Ground Ways::ground(const Place &place) const
{
    const auto board = m_boards.constFind(place.map);
    if (board == m_boards.constEnd() || place.x < 0 || place.y < 0 || place.x >= board->width ||
        place.y >= board->height) {
        return Ground::kWall;
    }
    return board->ground.at(place.y * board->width + place.x);
}

bool Ways::canStand(const Place &place) const
{
    return ground(place) != Ground::kWall && m_blocked.count(place) == 0;
}

bool Ways::isOnEdge(const Place &place) const
{
    const Board board = m_boards.value(place.map);
    return place.x == 0 || place.y == 0 || place.x == board.width - 1 || place.y == board.height - 1;
}

bool Ways::isReached(const Figure &figure) const
{
    if (figure.byTouch) {
        return m_reached.count(figure.place) > 0;
    }
    const QVector<Place> around = besides(figure.place);
    return std::any_of(around.begin(), around.end(),
                       [this](const Place &place) { return m_reached.count(place) > 0; });
}

std::set<Place> Ways::reachedFrom(const Place &start) const
{
    std::set<Place> reached;
    QVector<Place> open = {start};
    while (!open.isEmpty()) {
        const Place place = open.takeLast();
        if (!canStand(place) || !reached.insert(place).second) {
            continue;
        }
        const auto transfer = m_transfers.find(place);
        open += transfer != m_transfers.end() ? QVector<Place>{transfer->second.to} : besides(place);
    }
    return reached;
}

std::set<Place> Ways::leadingTo(const Place &end) const
{
    std::set<Place> leading;
    QVector<Place> open = {end};
    while (!open.isEmpty()) {
        const Place place = open.takeLast();
        if (!canStand(place) || !leading.insert(place).second) {
            continue;
        }
        const QVector<Place> around = besides(place);
        std::copy_if(around.begin(), around.end(), std::back_inserter(open),
                     [this](const Place &from) { return m_transfers.count(from) == 0; });
        for (const auto &[from, transfer] : m_transfers) {
            if (!(transfer.to < place) && !(place < transfer.to)) {
                open.append(from);
            }
        }
    }
    return leading;
}

QStringList Ways::targetFindings() const
{
    const std::set<Place> leadingBack = leadingTo(m_start);
    QStringList findings;
    for (const auto &[from, transfer] : m_transfers) {
        if (!canStand(transfer.to) || m_transfers.count(transfer.to) > 0) {
            findings.append(
                QStringLiteral("%1: nobody can stand at %2").arg(transfer.event, text(transfer.to)));
        } else if (m_reached.count(from) > 0 && leadingBack.count(transfer.to) == 0) {
            findings.append(
                QStringLiteral("%1: nobody comes back from %2").arg(transfer.event, text(transfer.to)));
        }
    }
    return findings;
}

/// The cells beside a transfer that belong to the same exit: on the edge of the map those that can be walked
/// on, inside of it those of the same door.
QStringList Ways::exitFindings(const Place &from, const Transfer &transfer) const
{
    QStringList findings;
    const QVector<Place> around = besides(from);
    for (const Place &place : around) {
        const bool isSameEdge = isOnEdge(from) && isOnEdge(place);
        const bool isSameDoor = ground(from) == Ground::kDoor && ground(place) == Ground::kDoor;
        if ((isSameEdge || isSameDoor) && canStand(place) && m_transfers.count(place) == 0) {
            findings.append(
                QStringLiteral("%1: the cell beside it %2 leads nowhere").arg(transfer.event, text(place)));
        }
    }
    return findings;
}

} // namespace sample
