#include "project/MapBoard.h"

#include "project/MapTree.h"
#include "project/TileSets.h"

#include <QJsonObject>

namespace {

const QString &dataMember()
{
    static const QString member = QStringLiteral("data");
    return member;
}

} // namespace

MapBoard::MapBoard(DataFiles *files, const RowSources *sources, const EditorTools *tools, QObject *parent)
    : QObject(parent)
    , m_files(files)
    , m_sources(sources)
    , m_tools(tools)
{
    connect(files, &DataLayer::changed, this, [this] { m_map.reset(); });
}

int MapBoard::number() const
{
    return m_sources->number(QStringLiteral("maps"), *m_files);
}

const GameMap *MapBoard::map() const
{
    const int shown = number();
    if (shown < 0) {
        return nullptr;
    }
    if (!m_map) {
        m_map = GameMap::fromFile(m_files->file(MapTree::fileOf(shown)));
        m_map->tileSet = TileSets::lookOf(m_map->tileSet + 1, *m_files, m_tools->start());
        m_map->name = m_files->value(MapTree::file(), QStringLiteral("/%1/name").arg(shown)).toString();
    }
    return &*m_map;
}

QPoint MapBoard::cursor() const
{
    const QSize size = map() != nullptr ? map()->size : QSize(1, 1);
    return {qBound(0, m_cursor.x(), size.width() - 1), qBound(0, m_cursor.y(), size.height() - 1)};
}

void MapBoard::setCursor(const QPoint &cell)
{
    m_cursor = cell;
    m_cursor = cursor();
    m_files->select(MapEvents::path(), MapEvents(m_files->file(MapTree::fileOf(number()))).at(m_cursor));
}

void MapBoard::addTo(StateParts &states)
{
    states.add(
        QStringLiteral("markedCell"),
        [this] {
            return QJsonArray{m_cursor.x(), m_cursor.y()};
        },
        [this](const QJsonValue &cell) {
            if (cell.isArray()) {
                m_cursor = {cell[0].toInt(), cell[1].toInt()};
            }
        });
}

QVector<MapEvents::Event> MapBoard::events() const
{
    return MapEvents(m_files->file(MapTree::fileOf(number()))).all();
}

bool MapBoard::moveEvent(const QPoint &from, const QPoint &to)
{
    const QString name = MapTree::fileOf(number());
    MapEvents events(m_files->file(name));
    if (events.at(from) == 0 || !events.isFree(to)) {
        return false;
    }
    events.move(events.at(from), to);
    m_files->change({{name, events.toFile()}}, QString());
    setCursor(to);
    return true;
}

QVector<QPoint> MapBoard::cellsOfStroke(const QPoint &from, const QPoint &to) const
{
    switch (m_tools->tool()) {
    case EditorTools::Tool::kRectangle:
        return GameMap::rectangle(from, to);
    case EditorTools::Tool::kEllipse:
        return GameMap::ellipse(from, to);
    case EditorTools::Tool::kFill:
        return map() != nullptr ? map()->connected(m_tools->layer(), to) : QVector<QPoint>();
    case EditorTools::Tool::kPencil:
    case EditorTools::Tool::kEraser:
        break;
    }
    return GameMap::line(from, to);
}

void MapBoard::beginStroke()
{
    ++m_stroke;
}

void MapBoard::paint(const QVector<QPoint> &cells)
{
    const GameMap *shown = map();
    if (shown == nullptr) {
        return;
    }
    const QString name = MapTree::fileOf(number());
    QJsonObject file = m_files->file(name).toObject();
    if (!shown->fits(file)) {
        return;
    }
    QJsonArray data = file.value(dataMember()).toArray();
    // A file with too few numbers gets the others: they count as empty.
    while (data.size() < GameMap::kLayers * shown->size.width() * shown->size.height()) {
        data.append(0);
    }
    const int tile = m_tools->tool() == EditorTools::Tool::kEraser ? GameMap::kEmpty : m_tools->tile();
    for (const QPoint &cell : cells) {
        if (shown->contains(cell)) {
            data.replace(shown->placeInFile(m_tools->layer(), cell), tile + 1);
        }
    }
    file.insert(dataMember(), data);
    m_files->change({{name, file}}, QStringLiteral("stroke %1").arg(m_stroke));
}
