#include "window/EditorProject.h"

#include "window/ToolIcon.h"

#include <QDir>

#include <utility>

namespace {

constexpr int kFullSize = 32;
constexpr int kSmallest = 8;
constexpr int kLargest = 64;
constexpr int kUndoSteps = 100;

const QStringList &toolCommands()
{
    static const QStringList commands{QStringLiteral("tool.pencil"), QStringLiteral("tool.rectangle"),
                                      QStringLiteral("tool.ellipse"), QStringLiteral("tool.fill"),
                                      QStringLiteral("tool.eraser")};
    return commands;
}

const QStringList &layerCommands()
{
    static const QStringList commands{QStringLiteral("layer.1"), QStringLiteral("layer.2"),
                                      QStringLiteral("layer.3")};
    return commands;
}

} // namespace

EditorProject::EditorProject(ProjectData data, QObject *parent)
    : QObject(parent)
    , m_data(std::move(data))
    , m_newName(m_data.texts.value(QStringLiteral("projectName")))
    , m_newLocation(QDir::home().filePath(QStringLiteral("Games")))
{
}

QStringList EditorProject::commands()
{
    return toolCommands() + layerCommands() +
           QStringList{QStringLiteral("mode.map"),          QStringLiteral("mode.event"),
                       QStringLiteral("view.zoomIn"),       QStringLiteral("view.zoomOut"),
                       QStringLiteral("view.zoomActual"),   QStringLiteral("view.grid"),
                       QStringLiteral("project.save"),      QStringLiteral("map.undo"),
                       QStringLiteral("map.redo"),          QStringLiteral("map.edit"),
                       QStringLiteral("map.new"),           QStringLiteral("map.delete"),
                       QStringLiteral("map.accept"),        QStringLiteral("newProject.accept"),
                       QStringLiteral("newProject.create"), QStringLiteral("tileSet.choose"),
                       QStringLiteral("tileSet.accept"),    QStringLiteral("sampleMap.accept")};
}

QStringList EditorProject::fields()
{
    return {QStringLiteral("status"),
            QStringLiteral("newProject.name"),
            QStringLiteral("newProject.location"),
            QStringLiteral("map.name"),
            QStringLiteral("map.displayName"),
            QStringLiteral("map.width"),
            QStringLiteral("map.height"),
            QStringLiteral("map.showName")};
}

QStringList EditorProject::sources()
{
    return QStringList{QStringLiteral("maps"), QStringLiteral("tiles"), QStringLiteral("tileTab"),
                       QStringLiteral("tileSets"), QStringLiteral("sampleMaps")} +
           ProjectContents::sources();
}

QStringList EditorProject::pictures()
{
    return {QStringLiteral("map.tileSet"), QStringLiteral("tileSet"), QStringLiteral("sampleMap")};
}

EditorNames EditorProject::names()
{
    return {commands(), fields(), sources(), pictures(), toolIcons()};
}

void EditorProject::run(const QString &command)
{
    if (!runView(command)) {
        runMap(command);
        runDialog(command);
    }
    Q_EMIT changed();
}

bool EditorProject::runView(const QString &command)
{
    if (toolCommands().contains(command))
        m_tool = static_cast<Tool>(toolCommands().indexOf(command));
    else if (layerCommands().contains(command))
        m_layer = layerCommands().indexOf(command);
    else if (command == QLatin1String("mode.map") || command == QLatin1String("mode.event"))
        m_eventMode = command == QLatin1String("mode.event");
    else if (command == QLatin1String("view.zoomIn"))
        m_cellPixels = qMin(m_cellPixels * 2, kLargest);
    else if (command == QLatin1String("view.zoomOut"))
        m_cellPixels = qMax(m_cellPixels / 2, kSmallest);
    else if (command == QLatin1String("view.zoomActual"))
        m_cellPixels = kFullSize;
    else if (command == QLatin1String("view.grid"))
        m_grid = !m_grid;
    else
        return false;
    return true;
}

void EditorProject::runMap(const QString &command)
{
    if (command == QLatin1String("project.save")) {
        m_modified = false;
        return;
    }
    OpenMap *open = current();
    if (command == QLatin1String("map.new")) {
        m_draft = GameMap::blank(QSize(24, 16), 0);
        m_draft.name = m_data.texts.value(QStringLiteral("newMapName"));
        m_draft.level = open != nullptr ? open->map.level : 0;
        m_draftSize = m_draft.size;
        m_draftIsNew = true;
    } else if (command == QLatin1String("map.accept")) {
        acceptMap();
    } else if (open == nullptr) {
        return;
    } else if (command == QLatin1String("map.undo")) {
        swapLayers(open->undo, open->redo);
    } else if (command == QLatin1String("map.redo")) {
        swapLayers(open->redo, open->undo);
    } else if (command == QLatin1String("map.edit")) {
        editMap();
    } else if (command == QLatin1String("map.delete")) {
        m_maps.remove(m_currentMap);
        selectMap(m_currentMap);
        m_modified = true;
    }
}

void EditorProject::runDialog(const QString &command)
{
    if (command == QLatin1String("newProject.accept")) {
        m_open = false;
        m_maps.clear();
        m_names.clear();
        selectMap(-1);
    } else if (command == QLatin1String("newProject.create")) {
        create();
    } else if (command == QLatin1String("tileSet.choose")) {
        m_draftTileSet = m_draft.tileSet;
    } else if (command == QLatin1String("tileSet.accept")) {
        m_draft.tileSet = m_draftTileSet;
    } else if (command == QLatin1String("sampleMap.accept")) {
        addMap(m_data.sampleMaps[m_sampleMap]);
    }
}

std::optional<bool> EditorProject::isOn(const QString &command) const
{
    if (toolCommands().contains(command))
        return toolCommands().indexOf(command) == int(m_tool);
    if (layerCommands().contains(command))
        return layerCommands().indexOf(command) == m_layer;
    if (command == QLatin1String("mode.map"))
        return !m_eventMode;
    if (command == QLatin1String("mode.event"))
        return m_eventMode;
    if (command == QLatin1String("view.grid"))
        return m_grid;
    return std::nullopt;
}

QVariant EditorProject::field(const QString &name) const
{
    if (name == QLatin1String("status"))
        return status();
    if (name == QLatin1String("newProject.name"))
        return m_newName;
    if (name == QLatin1String("newProject.location"))
        return m_newLocation;
    if (name == QLatin1String("map.name"))
        return m_draft.name;
    if (name == QLatin1String("map.displayName"))
        return m_draft.displayName;
    if (name == QLatin1String("map.width"))
        return m_draftSize.width();
    if (name == QLatin1String("map.height"))
        return m_draftSize.height();
    if (name == QLatin1String("map.showName"))
        return m_draft.showName;
    return {};
}

void EditorProject::setField(const QString &name, const QVariant &value)
{
    if (name == QLatin1String("newProject.name"))
        m_newName = value.toString();
    else if (name == QLatin1String("newProject.location"))
        m_newLocation = value.toString();
    else if (name == QLatin1String("map.name"))
        m_draft.name = value.toString();
    else if (name == QLatin1String("map.displayName"))
        m_draft.displayName = value.toString();
    else if (name == QLatin1String("map.width"))
        m_draftSize.setWidth(value.toInt());
    else if (name == QLatin1String("map.height"))
        m_draftSize.setHeight(value.toInt());
    else if (name == QLatin1String("map.showName"))
        m_draft.showName = value.toBool();
}

QVector<EditorProject::Row> EditorProject::rows(const QString &source) const
{
    QVector<Row> rows;
    if (source == QLatin1String("maps")) {
        for (const OpenMap &open : m_maps)
            rows.append({open.map.name, open.map.level, GameMap::kEmpty});
    } else if (source == QLatin1String("tiles")) {
        const int first = m_tileTab * ProjectData::kTilesPerTab;
        for (int tile = first; tile < first + ProjectData::kTilesPerTab && tile < m_data.tiles.size(); ++tile)
            rows.append({m_data.tiles[tile].name, 0, tile});
    } else if (source == QLatin1String("tileSets")) {
        for (const ProjectData::TileSet &set : m_data.tileSets)
            rows.append({set.name, 0, GameMap::kEmpty});
    } else if (source == QLatin1String("sampleMaps")) {
        for (const GameMap &map : m_data.sampleMaps)
            rows.append({map.name, 0, GameMap::kEmpty});
    } else {
        const QStringList names = m_names.value(source);
        for (const QString &name : names)
            rows.append({name, 0, GameMap::kEmpty});
    }
    return rows;
}

int EditorProject::currentRow(const QString &source) const
{
    if (source == QLatin1String("maps"))
        return m_currentMap;
    if (source == QLatin1String("tileTab"))
        return m_tileTab;
    if (source == QLatin1String("tiles"))
        return m_tile / ProjectData::kTilesPerTab == m_tileTab ? m_tile % ProjectData::kTilesPerTab : -1;
    if (source == QLatin1String("tileSets"))
        return m_draftTileSet;
    if (source == QLatin1String("sampleMaps"))
        return m_sampleMap;
    return m_names.value(source).isEmpty() ? -1 : m_nameRows.value(source);
}

void EditorProject::setCurrentRow(const QString &source, int row)
{
    if (source == QLatin1String("maps"))
        selectMap(row);
    else if (source == QLatin1String("tileTab"))
        m_tileTab = row;
    else if (source == QLatin1String("tiles"))
        m_tile = qBound(0, m_tileTab * ProjectData::kTilesPerTab + row, m_data.tiles.size() - 1);
    else if (source == QLatin1String("tileSets"))
        m_draftTileSet = qBound(0, row, m_data.tileSets.size() - 1);
    else if (source == QLatin1String("sampleMaps"))
        m_sampleMap = qBound(0, row, m_data.sampleMaps.size() - 1);
    else if (m_names.contains(source))
        m_nameRows.insert(source, qBound(0, row, qMax(0, m_names.value(source).size() - 1)));
    Q_EMIT changed();
}

const GameMap *EditorProject::map() const
{
    return m_currentMap >= 0 ? &m_maps[m_currentMap].map : nullptr;
}

QVector<QPoint> EditorProject::cellsOfStroke(const QPoint &from, const QPoint &to) const
{
    switch (m_tool) {
    case Tool::kRectangle:
        return GameMap::rectangle(from, to);
    case Tool::kEllipse:
        return GameMap::ellipse(from, to);
    case Tool::kFill:
        return map() != nullptr ? map()->connected(m_layer, to) : QVector<QPoint>();
    case Tool::kPencil:
    case Tool::kEraser:
        break;
    }
    return GameMap::line(from, to);
}

void EditorProject::beginStroke()
{
    OpenMap *open = current();
    if (open == nullptr)
        return;
    open->undo.append(open->map.layers);
    if (open->undo.size() > kUndoSteps)
        open->undo.removeFirst();
    open->redo.clear();
}

void EditorProject::paint(const QVector<QPoint> &cells)
{
    OpenMap *open = current();
    if (open == nullptr)
        return;
    for (const QPoint &cell : cells)
        open->map.setTile(m_layer, cell, m_tool == Tool::kEraser ? GameMap::kEmpty : m_tile);
    const bool wasModified = std::exchange(m_modified, true);
    Q_EMIT cellsChanged();
    if (!wasModified)
        Q_EMIT changed();
}

void EditorProject::selectMap(int row)
{
    m_currentMap = qBound(-1, row, m_maps.size() - 1);
    editMap();
}

void EditorProject::editMap()
{
    m_draftIsNew = false;
    if (const GameMap *shown = map()) {
        m_draft = *shown;
        m_draftSize = shown->size;
    }
}

void EditorProject::acceptMap()
{
    OpenMap *open = current();
    if (m_draftIsNew) {
        m_draft.resize(m_draftSize, 0);
        addMap(m_draft);
    } else if (open != nullptr) {
        open->map.name = m_draft.name;
        open->map.displayName = m_draft.displayName;
        open->map.showName = m_draft.showName;
        open->map.tileSet = m_draft.tileSet;
        if (open->map.size != m_draftSize) {
            open->map.resize(m_draftSize, 0);
            open->undo.clear();
            open->redo.clear();
        }
        m_modified = true;
    }
}

void EditorProject::addMap(GameMap map)
{
    if (!m_open)
        return;
    const OpenMap *below = current();
    map.level = below != nullptr ? below->map.level : 0;
    m_maps.insert(m_currentMap + 1, {std::move(map), {}, {}});
    selectMap(m_currentMap + 1);
    m_modified = true;
}

void EditorProject::create()
{
    ProjectContents contents;
    contents.maps = m_data.startMaps;
    m_name = m_newName;
    m_open = true;
    replace(std::move(contents));
    Q_EMIT created(m_newLocation, m_name);
}

void EditorProject::show(ProjectContents contents)
{
    if (!m_open)
        return;
    replace(std::move(contents));
    Q_EMIT changed();
}

void EditorProject::replace(ProjectContents contents)
{
    m_maps.clear();
    for (GameMap &map : contents.maps)
        m_maps.append({std::move(map), {}, {}});
    m_names = std::move(contents.names);
    m_nameRows.clear();
    selectMap(0);
    m_modified = false;
}

void EditorProject::swapLayers(QVector<GameMap::Layers> &from, QVector<GameMap::Layers> &to)
{
    if (from.isEmpty())
        return;
    GameMap &map = m_maps[m_currentMap].map;
    to.append(map.layers);
    map.layers = from.takeLast();
    m_modified = true;
    Q_EMIT cellsChanged();
}

QString EditorProject::status() const
{
    const GameMap *shown = map();
    if (shown == nullptr)
        return m_open ? QString() : m_data.texts.value(QStringLiteral("noProject"));
    return m_data.texts.value(QStringLiteral("status"))
        .arg(shown->name, QString::number(shown->size.width()), QString::number(shown->size.height()),
             QString::number(m_cellPixels * 100 / kFullSize));
}

EditorProject::OpenMap *EditorProject::current()
{
    return m_currentMap >= 0 ? &m_maps[m_currentMap] : nullptr;
}
