#include "project/Maps.h"

#include "project/GameMap.h"
#include "project/MapTree.h"
#include "project/TileSets.h"
#include "project/events/MapEvents.h"

#include <QJsonObject>

namespace {

constexpr QSize kNewMapSize(24, 16);
/// The tile that new cells have on the lowest layer.
constexpr int kGround = 0;

QString mapsSource()
{
    return QStringLiteral("maps");
}

QVector<Row> treeRows(const DataLayer &layer)
{
    QVector<Row> rows;
    const QVector<MapTree::Entry> entries = MapTree(layer.file(MapTree::file())).entries();
    for (const MapTree::Entry &entry : entries) {
        rows.append({entry.name, entry.number, entry.level});
    }
    return rows;
}

} // namespace

Maps::Maps(const StartData *start, const RowSources *sources)
    : m_start(start)
    , m_sources(sources)
{
}

void Maps::addTo(Commands &commands, Fields &fields, RowSources &sources)
{
    sources.add(mapsSource(), treeRows);
    sources.add(QStringLiteral("sampleMaps"), [this](const DataLayer & /*layer*/) {
        QVector<Row> rows;
        for (const GameMap &map : m_start->sampleMaps) {
            rows.append({map.name, int(rows.size())});
        }
        return rows;
    });
    sources.add(QStringLiteral("tileSets"),
                [this](const DataLayer &layer) { return TileSets::rows(layer, *m_start); });
    // A map whose file does not say it shows its name.
    fields.add(
        QStringLiteral("map.showName"),
        [this](const DataLayer &layer) {
            return layer.value(MapTree::fileOf(selected(layer)), QStringLiteral("/showName")).toBool(true);
        },
        [this](DataLayer &layer, const QVariant &value) {
            layer.set(MapTree::fileOf(selected(layer)), QStringLiteral("/showName"), value.toBool());
        });
    const auto pushed = [this](const DataLayer &layer) {
        const QJsonValue file = layer.file(MapTree::fileOf(selected(layer)));
        return file.isObject() ? MapEvents(file).countOutside(GameMap::fromFile(file).size) : 0;
    };
    const auto keep = [](DataLayer & /*layer*/, const QVariant & /*value*/) {
    };
    fields.add(QStringLiteral("map.pushed"), pushed, keep);
    fields.add(
        QStringLiteral("map.pushes"), [pushed](const DataLayer &layer) { return pushed(layer) > 0; }, keep);
    commands.add(QStringLiteral("map.new"), [this](DataLayer &layer) {
        GameMap map = GameMap::blank(kNewMapSize, kGround);
        map.name = m_start->texts.value(QStringLiteral("newMapName"));
        add(map, layer);
    });
    commands.add(QStringLiteral("map.delete"), [this](DataLayer &layer) { remove(layer); });
    commands.add(QStringLiteral("map.accept"), [this](DataLayer &layer) { accept(layer); });
    commands.add(QStringLiteral("sampleMap.accept"), [this](DataLayer &layer) {
        add(m_start->sampleMaps.at(m_sources->number(QStringLiteral("sampleMaps"), layer)), layer);
    });
}

int Maps::selected(const DataLayer &layer) const
{
    return m_sources->number(mapsSource(), layer);
}

void Maps::add(const GameMap &map, DataLayer &layer) const
{
    MapTree tree(layer.file(MapTree::file()));
    const int number = tree.insertBehind(selected(layer), map.name);
    layer.change({{MapTree::file(), tree.toFile()}, {MapTree::fileOf(number), map.toFile()}}, QString());
    layer.select(mapsSource(), number);
}

void Maps::remove(DataLayer &layer) const
{
    const int number = selected(layer);
    const int row = m_sources->currentRow(mapsSource(), layer);
    if (number < 0) {
        return;
    }
    MapTree tree(layer.file(MapTree::file()));
    tree.remove(number);
    layer.change(
        {{MapTree::file(), tree.toFile()}, {MapTree::fileOf(number), QJsonValue(QJsonValue::Undefined)}},
        QString());
    m_sources->setCurrentRow(mapsSource(), row, layer);
}

void Maps::accept(DataLayer &layer) const
{
    const QString name = MapTree::fileOf(selected(layer));
    const QJsonValue file = layer.file(name);
    const QJsonValue before =
        layer.below() != nullptr ? layer.below()->file(name) : QJsonValue(QJsonValue::Undefined);
    const QSize size = GameMap::fromFile(file).size;
    // The cells follow the size here and not while it is typed: half a number must not cut the map.
    GameMap map = before.isUndefined() ? GameMap::blank(size, kGround) : GameMap::fromFile(before);
    if (file.isObject() && (before.isUndefined() || map.size != size)) {
        map.resize(size, kGround);
        MapEvents events(file);
        // None is lost with the cells under it.
        events.keepInside(size);
        QJsonObject resized = events.toFile().toObject();
        resized.insert(QStringLiteral("data"), map.cellsForFile());
        layer.change({{name, resized}}, QString());
    }
    layer.accept();
}
