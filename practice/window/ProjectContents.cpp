#include "window/ProjectContents.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr int kLargestMap = 256;

struct ListFile
{
    const char *source;
    const char *file;
};

constexpr ListFile kListFiles[] = {
    {"actors", "Actors"},   {"classes", "Classes"},       {"skills", "Skills"},    {"items", "Items"},
    {"weapons", "Weapons"}, {"armors", "Armors"},         {"enemies", "Enemies"},  {"troops", "Troops"},
    {"states", "States"},   {"animations", "Animations"}, {"tilesets", "Tilesets"}};
constexpr const char *kSwitches = "switches";

using Files = QMap<QString, QString>;

QJsonDocument readFile(const Files &files, const QString &name)
{
    return QJsonDocument::fromJson(files.value(QStringLiteral("data/%1.json").arg(name)).toUtf8());
}

/// Entry 0 of a data file is never one.
QStringList namesIn(const QJsonArray &entries)
{
    QStringList names;
    for (int i = 1; i < entries.size(); ++i) {
        const QJsonValue entry = entries.at(i);
        names.append(entry.isString() ? entry.toString() : entry[QLatin1String("name")].toString());
    }
    return names;
}

GameMap readMap(const QJsonObject &object, int tileCount)
{
    const QSize size(qBound(1, object[QLatin1String("width")].toInt(), kLargestMap),
                     qBound(1, object[QLatin1String("height")].toInt(), kLargestMap));
    GameMap map = GameMap::blank(size, GameMap::kEmpty);
    map.tileSet = qMax(0, object[QLatin1String("tilesetId")].toInt() - 1);
    const QJsonArray data = object[QLatin1String("data")].toArray();
    const int cells = size.width() * size.height();
    for (int i = 0; i < qMin(data.size(), GameMap::kLayers * cells); ++i) {
        // Tile 1 of the data file is the first one, 0 an empty cell.
        const int tile = data.at(i).toInt() - 1;
        if (tile >= 0 && tile < tileCount) {
            const int cell = i % cells;
            map.setTile(i / cells, {cell % size.width(), cell / size.width()}, tile);
        }
    }
    return map;
}

/// Appends the maps that belong to the map @p parent, each with those below it.
void appendMaps(const Files &files, const QJsonArray &infos, int parent, int level, int tileCount,
                QVector<GameMap> &maps)
{
    QVector<QJsonObject> children;
    for (int id = 1; id < infos.size(); ++id) {
        const QJsonObject info = infos.at(id).toObject();
        // An entry that is no object has no id of its own.
        if (info[QLatin1String("id")].toInt() == id && info[QLatin1String("parentId")].toInt() == parent) {
            children.append(info);
        }
    }
    std::stable_sort(children.begin(), children.end(), [](const QJsonObject &left, const QJsonObject &right) {
        return left[QLatin1String("order")].toInt() < right[QLatin1String("order")].toInt();
    });
    for (const QJsonObject &info : qAsConst(children)) {
        const int id = info[QLatin1String("id")].toInt();
        const QString file = QStringLiteral("Map%1").arg(id, 3, 10, QLatin1Char('0'));
        GameMap map = readMap(readFile(files, file).object(), tileCount);
        map.name = info[QLatin1String("name")].toString();
        map.displayName = map.name;
        map.level = level;
        maps.append(std::move(map));
        appendMaps(files, infos, id, level + 1, tileCount, maps);
    }
}

} // namespace

QStringList ProjectContents::sources()
{
    QStringList sources;
    for (const ListFile &list : kListFiles) {
        sources.append(QString::fromLatin1(list.source));
    }
    sources.append(QString::fromLatin1(kSwitches));
    return sources;
}

ProjectContents ProjectContents::read(const QMap<QString, QString> &files, int tileCount)
{
    ProjectContents contents;
    for (const ListFile &list : kListFiles) {
        contents.names.insert(QString::fromLatin1(list.source),
                              namesIn(readFile(files, QString::fromLatin1(list.file)).array()));
    }
    const QJsonObject system = readFile(files, QStringLiteral("System")).object();
    contents.names.insert(QString::fromLatin1(kSwitches),
                          namesIn(system[QLatin1String(kSwitches)].toArray()));
    // Each map is reached once: it has one parent, and the walk begins at none.
    appendMaps(files, readFile(files, QStringLiteral("MapInfos")).array(), 0, 0, tileCount, contents.maps);
    return contents;
}
