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

/// Whether one can stand on a tile, by its number; 0 is no tile.
QVector<bool> floors(const QStringList &tiles)
{
    static const QSet<QString> kinds = {
        QStringLiteral("grass"),   QStringLiteral("tallGrass"), QStringLiteral("path"),
        QStringLiteral("sand"),    QStringLiteral("floor"),     QStringLiteral("snow"),
        QStringLiteral("flowers"), QStringLiteral("reeds"),     QStringLiteral("mushrooms"),
        QStringLiteral("bridge"),  QStringLiteral("door")};
    QVector<bool> floors{false};
    for (const QString &tile : tiles) {
        floors.append(kinds.contains(tile));
    }
    return floors;
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
    page.moveType = MoveType(qBound(0, number(json, "moveType"), 3));
    page.moveSpeed = number(json, "moveSpeed");
    page.moveFrequency = number(json, "moveFrequency");
    page.hasFixedDirection = flag(json, "directionFix");
    page.isThrough = flag(json, "through");
    page.stepsInPlace = flag(json, "stepAnime");
    page.trigger = Trigger(qBound(0, number(json, "trigger"), 4));
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
            if (!member(pages.at(page), "list").isArray()) {
                tell(page + 1, QCoreApplication::translate(
                                   "TestPlay", "The page has no list of commands: it does nothing."));
            }
        }
    }
}

/// Fills in the cells; false when there are none, or too many.
bool readCells(const QJsonValue &json, const QVector<bool> &floors, MapData *map)
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
    map->floor.fill(false, cells);
    for (int cell = 0; cell < cells; ++cell) {
        // The uppermost tile decides.
        for (int layer = MapData::kLayers - 1; layer >= 0; --layer) {
            const int tile = map->tiles.at(layer * cells + cell);
            if (tile != 0) {
                map->floor[cell] = floors.value(tile);
                break;
            }
        }
    }
    return true;
}

MapData readMap(int id, const QString &file, const QJsonValue &json, const QVector<bool> &floors,
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
    if (!readCells(json, floors, &map)) {
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
    const QVector<bool> walkable = floors(tiles);
    const QJsonArray infos = files.value(QStringLiteral("data/MapInfos.json")).toArray();
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (const int id = mapNumber(file.key()); id > 0) {
            MapData map = readMap(id, file.key(), file.value(), walkable, &data->problems);
            map.name = text(infos.at(id), "name");
            data->maps.insert(map);
        }
    }
}

} // namespace player::MapReader
