#include "project/EditorTools.h"

namespace {

constexpr int kSmallest = 8;
constexpr int kLargest = 64;
constexpr int kTools = 5;

} // namespace

EditorTools::EditorTools(const StartData *start, QObject *parent)
    : QObject(parent)
    , m_start(start)
{
}

template<typename Value>
void EditorTools::addChoice(Commands &commands, const char *name, Value EditorTools::*member, Value choice)
{
    commands.add(
        QString::fromLatin1(name),
        [this, member, choice] {
            this->*member = choice;
            Q_EMIT changed();
        },
        [this, member, choice] { return this->*member == choice; });
}

void EditorTools::addTo(Commands &commands, RowSources &sources)
{
    addChoice(commands, "tool.pencil", &EditorTools::m_tool, Tool::kPencil);
    addChoice(commands, "tool.rectangle", &EditorTools::m_tool, Tool::kRectangle);
    addChoice(commands, "tool.ellipse", &EditorTools::m_tool, Tool::kEllipse);
    addChoice(commands, "tool.fill", &EditorTools::m_tool, Tool::kFill);
    addChoice(commands, "tool.eraser", &EditorTools::m_tool, Tool::kEraser);
    addChoice(commands, "layer.1", &EditorTools::m_layer, 0);
    addChoice(commands, "layer.2", &EditorTools::m_layer, 1);
    addChoice(commands, "layer.3", &EditorTools::m_layer, 2);
    addChoice(commands, "mode.map", &EditorTools::m_eventMode, false);
    addChoice(commands, "mode.event", &EditorTools::m_eventMode, true);
    commands.add(QStringLiteral("view.zoomIn"), [this] { setCellPixels(m_cellPixels * 2); });
    commands.add(QStringLiteral("view.zoomOut"), [this] { setCellPixels(m_cellPixels / 2); });
    commands.add(QStringLiteral("view.zoomActual"), [this] { setCellPixels(kFullSize); });
    commands.add(
        QStringLiteral("view.grid"),
        [this] {
            m_grid = !m_grid;
            Q_EMIT changed();
        },
        [this] { return m_grid; });

    sources.add(
        QStringLiteral("tileTab"), [](const DataLayer & /*layer*/) { return QVector<Row>(); },
        [this] { return m_tileTab; },
        [this](int tab) {
            m_tileTab = tab;
            Q_EMIT changed();
        });
    sources.add(
        QStringLiteral("tiles"), [this](const DataLayer & /*layer*/) { return tilesOfTab(); },
        [this] {
            return m_tile / StartData::kTilesPerTab == m_tileTab ? m_tile % StartData::kTilesPerTab : -1;
        },
        [this](int row) {
            m_tile = qBound(0, m_tileTab * StartData::kTilesPerTab + row, int(m_start->tiles.size()) - 1);
            Q_EMIT changed();
        });
}

void EditorTools::addTo(StateParts &states)
{
    states.add(
        QStringLiteral("tools"),
        [this] {
            return QJsonObject{{QStringLiteral("tool"), static_cast<int>(m_tool)},
                               {QStringLiteral("layer"), m_layer},
                               {QStringLiteral("tab"), m_tileTab},
                               {QStringLiteral("tile"), m_tile},
                               {QStringLiteral("events"), m_eventMode},
                               {QStringLiteral("grid"), m_grid},
                               {QStringLiteral("cell"), m_cellPixels}};
        },
        [this](const QJsonValue &value) {
            const QJsonObject state = value.toObject();
            m_tool = static_cast<Tool>(qBound(0, state.value(QLatin1String("tool")).toInt(), kTools - 1));
            m_layer = qBound(0, state.value(QLatin1String("layer")).toInt(), GameMap::kLayers - 1);
            m_tileTab = qMax(0, state.value(QLatin1String("tab")).toInt());
            m_tile = qBound(0, state.value(QLatin1String("tile")).toInt(), int(m_start->tiles.size()) - 1);
            m_eventMode = state.value(QLatin1String("events")).toBool();
            m_grid = state.value(QLatin1String("grid")).toBool();
            setCellPixels(state.value(QLatin1String("cell")).toInt(kFullSize));
        });
}

void EditorTools::setCellPixels(int pixels)
{
    m_cellPixels = qBound(kSmallest, pixels, kLargest);
    Q_EMIT changed();
}

QVector<Row> EditorTools::tilesOfTab() const
{
    QVector<Row> rows;
    const int first = m_tileTab * StartData::kTilesPerTab;
    for (int tile = first; tile < first + StartData::kTilesPerTab && tile < m_start->tiles.size(); ++tile) {
        rows.append({m_start->tiles.at(tile).name, tile, 0, tile});
    }
    return rows;
}
