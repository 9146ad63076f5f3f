#include "player/game/MapReader.h"

#include "player/game/JsonRead.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>

namespace player::MapReader {

namespace {

using JsonRead::flag;
using JsonRead::list;
using JsonRead::member;
using JsonRead::number;
using JsonRead::text;

constexpr int kLastMoveType = int(MoveType::kRoute);
constexpr int kLastTrigger = int(Trigger::kParallel);

bool isOneOf(const QJsonValue &page, const char *key, int last)
{
    const int value = number(page, key);
    return value >= 0 && value <= last;
}

/// 0 for a number that has no meaning.
int oneOf(const QJsonValue &page, const char *key, int last)
{
    return isOneOf(page, key, last) ? number(page, key) : 0;
}

/// What can be done with tiles, by their numbers; 0 is no tile.
struct TileKinds
{
    /// One can stand on them.
    QVector<bool> floors{false};
    /// One can talk across them.
    QVector<bool> counters{false};
};

TileKinds kindsOf(const QStringList &tiles)
{
    static const QSet<QString> floors = {
        QStringLiteral("grass"),   QStringLiteral("tallGrass"), QStringLiteral("path"),
        QStringLiteral("sand"),    QStringLiteral("floor"),     QStringLiteral("snow"),
        QStringLiteral("flowers"), QStringLiteral("reeds"),     QStringLiteral("mushrooms"),
        QStringLiteral("bridge"),  QStringLiteral("door")};
    TileKinds kinds;
    for (const QString &tile : tiles) {
        kinds.floors.append(floors.contains(tile));
        kinds.counters.append(tile == QLatin1String("fence"));
    }
    return kinds;
}

EventPage page(const QJsonValue &json)
{
    EventPage page;
    const QJsonValue conditions = member(json, "conditions");
    page.conditions.switchId = number(conditions, "switchId");
    page.conditions.variableId = number(conditions, "variableId");
    page.conditions.variableValue = number(conditions, "variableValue");
    page.conditions.selfSwitch = text(conditions, "selfSwitch");
    page.image = text(json, "image");
    page.moveType = MoveType(oneOf(json, "moveType", kLastMoveType));
    page.moveSpeed = number(json, "moveSpeed");
    page.moveFrequency = number(json, "moveFrequency");
    page.hasFixedDirection = flag(json, "directionFix");
    page.isThrough = flag(json, "through");
    page.stepsInPlace = flag(json, "stepAnime");
    page.trigger = Trigger(oneOf(json, "trigger", kLastTrigger));
    page.route = Route::fromJson(member(json, "moveRoute"));
    page.list = commandsFromJson(member(json, "list"));
    return page;
}

QVector<MapEvent> events(const QJsonValue &map)
{
    QVector<MapEvent> events;
    const QJsonArray entries = list(map, "events");
    for (int id = 1; id < entries.size(); ++id) {
        const QJsonValue json = entries.at(id);
        if (!json.isObject()) {
            continue;
        }
        MapEvent event{id, text(json, "name"), {number(json, "x"), number(json, "y")}, {}};
        const QJsonArray pages = list(json, "pages");
        for (const QJsonValue &entry : pages) {
            event.pages.append(page(entry));
        }
        events.append(event);
    }
    return events;
}

/// Names what is wrong with the events of a map, and moves those outside of it beside its edge.
void checkEvents(const QString &file, const QJsonValue &json, MapData *map, QVector<Problem> *problems)
{
    const QJsonArray entries = list(json, "events");
    for (MapEvent &event : map->events) {
        const auto tell = [&](int page, const QString &text) {
            problems->append(Problem{file, map->id, event.id, page, 0, text});
        };
        if (!map->size.isEmpty() && !map->contains(event.cell)) {
            tell(0, QCoreApplication::translate("TestPlay", "The event stands at %1, %2, outside of its map.")
                        .arg(event.cell.x())
                        .arg(event.cell.y()));
            event.cell = {qBound(-1, event.cell.x(), map->size.width()),
                          qBound(-1, event.cell.y(), map->size.height())};
        }
        if (event.pages.isEmpty()) {
            tell(0, QCoreApplication::translate("TestPlay", "The event has no pages, so it is never there."));
        }
        const QJsonArray pages = list(entries.at(event.id), "pages");
        for (int page = 0; page < pages.size(); ++page) {
            if (!isOneOf(pages.at(page), "trigger", kLastTrigger)) {
                tell(page + 1, QCoreApplication::translate(
                                   "TestPlay", "The page begins by trigger %1, which there is not: it begins "
                                               "when it is asked.")
                                   .arg(number(pages.at(page), "trigger")));
            }
            if (!isOneOf(pages.at(page), "moveType", kLastMoveType)) {
                tell(page + 1,
                     QCoreApplication::translate("TestPlay", "The page moves in way %1, which there is not: "
                                                             "the event stays.")
                         .arg(number(pages.at(page), "moveType")));
            }
            for (const RouteStep &step : qAsConst(event.pages[page].route.steps)) {
                if (const QString complaint = step.complaint(); !complaint.isEmpty()) {
                    tell(page + 1, complaint);
                }
            }
            if (!member(pages.at(page), "list").isArray()) {
                tell(page + 1, QCoreApplication::translate(
                                   "TestPlay", "The page has no list of commands: it does nothing."));
            }
        }
    }
}

/// Takes the numbers of the cells; false when there are none, or too many.
bool readCells(const QJsonValue &json, MapData *map)
{
    const QSize size(number(json, "width"), number(json, "height"));
    if (size.width() < 1 || size.height() < 1 || size.width() > MapData::kLargest ||
        size.height() > MapData::kLargest) {
        return false;
    }
    map->size = size;
    const int cells = size.width() * size.height();
    const QJsonArray data = list(json, "data");
    map->tiles.fill(0, MapData::kLayers * cells);
    for (int i = 0; i < qMin(int(data.size()), int(map->tiles.size())); ++i) {
        map->tiles[i] = data.at(i).toInt();
    }
    return true;
}

void findFloor(const TileKinds &kinds, MapData *map)
{
    const int cells = map->size.width() * map->size.height();
    map->floor.fill(false, cells);
    map->counter.fill(false, cells);
    for (int cell = 0; cell < cells; ++cell) {
        // The uppermost tile decides.
        for (int layer = MapData::kLayers - 1; layer >= 0; --layer) {
            const int tile = map->tiles.at(layer * cells + cell);
            if (tile != 0) {
                map->floor[cell] = kinds.floors.value(tile);
                map->counter[cell] = kinds.counters.value(tile);
                break;
            }
        }
    }
}

/// Names cells that are missing or have tiles that are not there; the latter become empty.
void checkCells(const QString &file, const QJsonValue &json, int lastTile, MapData *map,
                QVector<Problem> *problems)
{
    const auto tell = [&](const QString &text) {
        problems->append(Problem{file, map->id, 0, 0, 0, text});
    };
    const QJsonArray data = list(json, "data");
    if (data.size() != map->tiles.size()) {
        tell(QCoreApplication::translate("TestPlay",
                                         "The map has %1 numbers of tiles; %2 x %3 cells in %4 layers need "
                                         "%5. Cells without a number are empty, and nobody can walk there.")
                 .arg(data.size())
                 .arg(map->size.width())
                 .arg(map->size.height())
                 .arg(MapData::kLayers)
                 .arg(map->tiles.size()));
    }
    const int cells = map->size.width() * map->size.height();
    int wild = 0;
    QString first;
    for (int i = 0; i < qMin(int(data.size()), int(map->tiles.size())); ++i) {
        const bool isNumber = data.at(i).isDouble() && data.at(i).toInt(-1) == data.at(i).toDouble();
        if (isNumber && map->tiles.at(i) >= 0 && map->tiles.at(i) <= lastTile) {
            continue;
        }
        map->tiles[i] = 0;
        if (wild++ == 0) {
            first = QCoreApplication::translate("TestPlay", "%1, %2 in layer %3", "place of a cell on a map")
                        .arg(i % cells % map->size.width())
                        .arg(i % cells / map->size.width())
                        .arg(i / cells + 1);
        }
    }
    if (wild > 0) {
        tell(QCoreApplication::translate("TestPlay",
                                         "The map has tiles that are not there: %1 in all, the first one at "
                                         "%2. Their cells are empty; draw them anew.")
                 .arg(QString::number(wild), first));
    }
}

MapData readMap(int id, const QString &file, const QJsonValue &json, const TileKinds &kinds,
                QVector<Problem> *problems)
{
    MapData map;
    map.id = id;
    map.displayName = text(json, "displayName");
    map.showsName = flag(json, "showName", true);
    map.tileSet = number(json, "tilesetId", 1);
    map.music = Sound::fromJson(member(json, "music"));
    map.backdrop = text(json, "backdrop");
    const QJsonArray encounters = list(json, "encounterList");
    for (const QJsonValue &encounter : encounters) {
        map.encounters.append({number(encounter, "troopId"), qBound(0, number(encounter, "weight"), 1000)});
    }
    map.events = events(json);
    if (readCells(json, &map)) {
        checkCells(file, json, int(kinds.floors.size()) - 1, &map, problems);
        findFloor(kinds, &map);
    } else {
        Problem problem;
        problem.file = file;
        problem.map = id;
        problem.text =
            QCoreApplication::translate("TestPlay", "The map has %1 x %2 cells; a side has to have 1 to %3. "
                                                    "Nobody can go there.")
                .arg(number(json, "width"))
                .arg(number(json, "height"))
                .arg(MapData::kLargest);
        problems->append(problem);
    }
    checkEvents(file, json, &map, problems);
    return map;
}

} // namespace

int mapNumber(const QString &file)
{
    static const QRegularExpression name(QStringLiteral("^data/Map(\\d{3,6})\\.json$"));
    const QRegularExpressionMatch match = name.match(file);
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

void read(const GameData::Files &files, const QStringList &tiles, GameData *data)
{
    const TileKinds kinds = kindsOf(tiles);
    const QJsonArray infos = files.value(QStringLiteral("data/MapInfos.json")).toArray();
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (const int id = mapNumber(file.key()); id > 0) {
            MapData map = readMap(id, file.key(), file.value(), kinds, &data->problems);
            map.name = text(infos.at(id), "name");
            data->maps.insert(map);
        }
    }
}

} // namespace player::MapReader
