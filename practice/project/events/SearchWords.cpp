#include "project/events/SearchWords.h"

#include <QJsonObject>

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

/// What is looked for stands in drafts alone.
QString searchFile()
{
    return str("search");
}

QString foundSource()
{
    return str("found");
}

QString mapsSource()
{
    return str("maps");
}

} // namespace

SearchWords::SearchWords(DataFiles *files, const RowSources *sources, MapBoard *board)
    : m_files(files)
    , m_sources(sources)
    , m_board(board)
{
}

void SearchWords::addTo(Commands &commands, RowSources &sources)
{
    sources.addRoot(searchFile(), [](const DataLayer & /*layer*/) -> std::optional<DataPlace> {
        return DataPlace{searchFile(), QString()};
    });
    sources.add(foundSource(), [this](const DataLayer &layer) {
        QVector<Row> rows;
        const QVector<EventSearch::Found> all = found(layer);
        for (const EventSearch::Found &event : all) {
            const QJsonValue map = m_sources->entry(str("data/MapInfos"), event.map, layer);
            rows.append({str("%1: %2 (%3, %4)")
                             .arg(map[QLatin1String("name")].toString(), event.name)
                             .arg(event.cell.x())
                             .arg(event.cell.y()),
                         int(rows.size())});
        }
        return rows;
    });
    commands.add(str("search.begin"), [](DataLayer &layer) {
        const QJsonObject wanted{
            {str("by"), 0}, {str("name"), QString()}, {str("switchId"), 1}, {str("variableId"), 1}};
        layer.change({{searchFile(), wanted}}, QString());
    });
    commands.add(
        str("search.show"), [this, &commands](DataLayer &layer) { show(commands, layer); }, {},
        [this](const DataLayer &layer, const QString & /*argument*/) { return !found(layer).isEmpty(); });
}

QVector<EventSearch::Found> SearchWords::found(const DataLayer &layer) const
{
    const QJsonObject form = layer.file(searchFile()).toObject();
    EventSearch::Wanted wanted;
    wanted.by = static_cast<EventSearch::By>(qBound(0, form.value(str("by")).toInt(), 2));
    wanted.name = form.value(str("name")).toString();
    wanted.number =
        form.value(wanted.by == EventSearch::By::kSwitch ? str("switchId") : str("variableId")).toInt();
    QVector<int> maps;
    const QVector<Row> rows = m_sources->rows(mapsSource(), layer);
    for (const Row &row : rows) {
        maps.append(row.number);
    }
    return EventSearch::find(wanted, maps, layer);
}

void SearchWords::show(const Commands &commands, const DataLayer &layer) const
{
    const QVector<EventSearch::Found> all = found(layer);
    const int row = m_sources->currentRow(foundSource(), layer);
    if (row < 0 || row >= all.size()) {
        return;
    }
    // The window's draft is dropped: the map is shown by the project itself.
    m_files->select(mapsSource(), all.at(row).map);
    m_board->setCursor(all.at(row).cell);
    commands.run(str("mode.event"), *m_files);
}
