#include "project/StartData.h"

#include "project/JsonText.h"
#include "project/MapTree.h"

#include <QDir>
#include <QJsonObject>

#include <array>

namespace {

/// Names of the texts that the editor says or writes itself.
constexpr std::array kTexts{"projectName",
                            "newMapName",
                            "noProject",
                            "status",
                            "newEventName",
                            "unknownCommand",
                            "listSeparator",
                            "enemyOfTroop",
                            "player",
                            "thisEvent",
                            "yes",
                            "no",
                            "quickTransfer",
                            "quickInn",
                            "quickInnAsks",
                            "quickInnMorning",
                            "quickInnPoor",
                            "quickTreasure",
                            "quickTreasureGold",
                            "quickTreasureFound",
                            "quickBase",
                            "quickBaseAsks",
                            "quickBaseRest",
                            "quickBaseSave",
                            "quickBaseLeave"};

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

/// Fills one layer from rows of letters; a dot is an empty cell.
void readLayer(JsonReader &reader, const QString &field, const QMap<QString, int> &letters, int layer,
               GameMap &map)
{
    const QStringList rows = reader.texts(field);
    if (rows.size() != map.size.height()) {
        reader.addError(field, str("must have as many rows as \"ground\""));
    }
    for (int y = 0; y < rows.size(); ++y) {
        if (rows[y].size() != map.size.width()) {
            reader.addError(field, str("row %1 must be as long as the first").arg(y));
        }
        for (int x = 0; x < rows[y].size(); ++x) {
            const QString letter = rows[y].mid(x, 1);
            if (letter == str(".")) {
                continue;
            }
            if (!letters.contains(letter)) {
                reader.addError(field, str("row %1: no tile has the letter \"%2\"").arg(y).arg(letter));
            }
            map.setTile(layer, {x, y}, letters.value(letter));
        }
    }
}

GameMap readMap(JsonReader &reader, const QMap<QString, int> &letters, const QString &locale)
{
    const QStringList ground = reader.texts(str("ground"));
    GameMap map = GameMap::blank(QSize(ground.value(0).size(), ground.size()), GameMap::kEmpty);
    map.name = reader.localText(str("name")).value(locale);
    map.displayName = map.name;
    map.tileSet = reader.number(str("tileSet"));
    readLayer(reader, str("ground"), letters, 0, map);
    readLayer(reader, str("objects"), letters, 1, map);
    return map;
}

QMap<QString, QString> readStartFiles(const QString &folder, QStringList *errors)
{
    QMap<QString, QString> files;
    const QStringList names = QDir(folder).entryList({str("*.json")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(QDir(folder).filePath(name));
        JsonText::Problem problem;
        const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        if (!JsonText::parse(text, &problem)) {
            errors->append(str("%1: line %2: %3").arg(file.fileName()).arg(problem.line).arg(problem.reason));
        }
        files.insert(str("data/") + name, QString::fromUtf8(text));
    }
    return files;
}

} // namespace

QMap<QString, QString> StartData::files() const
{
    QMap<QString, QString> files = startFiles;
    const auto put = [&files](const QString &name, const QJsonValue &value) {
        files.insert(name, QString::fromUtf8(JsonText::compact(value)));
    };
    QJsonArray sets{QJsonValue()};
    for (const TileSet &set : tileSets) {
        sets.append(QJsonObject{{str("id"), sets.size()},
                                {str("name"), set.name},
                                {str("note"), QString()},
                                {str("image"), set.image}});
    }
    put(str("data/Tilesets.json"), sets);
    MapTree tree;
    QVector<int> parents;
    for (const StartMap &start : startMaps) {
        parents.resize(qBound(0, start.level, int(parents.size())));
        parents.append(tree.append(start.map.name, parents.isEmpty() ? 0 : parents.constLast()));
        put(MapTree::fileOf(parents.constLast()), start.map.toFile());
    }
    put(MapTree::file(), tree.toFile());
    return files;
}

StartData StartData::read(const QString &folder, const QStringList &drawings, const QString &locale,
                          QStringList *errors)
{
    StartData data;
    auto reader = JsonReader::open(folder + str("/project.json"), errors);
    if (!reader) {
        return data;
    }
    QMap<QString, int> letters;
    for (JsonReader &tab : reader->objects(str("tileTabs"))) {
        QVector<JsonReader> tiles = tab.objects(str("tiles"));
        if (tiles.size() != kTilesPerTab) {
            tab.addError(str("tiles"), str("must be %1 tiles").arg(kTilesPerTab));
        }
        for (JsonReader &tile : tiles) {
            data.tiles.append({tile.choice(str("drawing"), drawings), tile.text(str("letter")),
                               tile.localText(str("name")).value(locale)});
            letters.insert(data.tiles.last().letter, data.tiles.size() - 1);
        }
    }
    for (JsonReader &set : reader->objects(str("tileSets"))) {
        QColor tint(set.text(str("tint")));
        if (!tint.isValid()) {
            set.addError(str("tint"), str("must be a colour, \"#rrggbb\""));
        }
        tint.setAlpha(qBound(0, set.number(str("strength")), 255));
        data.tileSets.append({set.localText(str("name")).value(locale), set.text(str("image")), tint});
    }
    for (JsonReader &map : reader->objects(str("sampleMaps"))) {
        data.sampleMaps.append(readMap(map, letters, locale));
        if (data.sampleMaps.last().tileSet < 0 || data.sampleMaps.last().tileSet >= data.tileSets.size()) {
            map.addError(str("tileSet"), str("must be the place of a tile set in \"tileSets\", from 0"));
        }
    }
    for (JsonReader &start : reader->objects(str("startMaps"))) {
        const int sample = start.number(str("sample"));
        if (sample < 0 || sample >= data.sampleMaps.size()) {
            start.addError(str("sample"), str("must be the place of a map in \"sampleMaps\", from 0"));
            continue;
        }
        data.startMaps.append({data.sampleMaps[sample], start.number(str("level"))});
    }
    auto texts = reader->object(str("texts"));
    for (const char *name : kTexts) {
        if (texts) {
            data.texts.insert(str(name), texts->localText(str(name)).value(locale));
        }
    }
    if (data.tiles.isEmpty() || data.tileSets.isEmpty() || data.startMaps.isEmpty() || !texts) {
        reader->addError(str("(file)"), str("needs tileTabs, tileSets, sampleMaps, startMaps and texts"));
    }
    data.startFiles = readStartFiles(folder + str("/start"), errors);
    return data;
}
