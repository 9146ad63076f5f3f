#include "project/events/QuickWords.h"

#include "project/MapTree.h"
#include "project/events/MapEvents.h"
#include "project/events/QuickEvents.h"

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

/// What is to be made stands in drafts alone.
QString quickFile()
{
    return str("quick");
}

/// The lists that a treasure can be in, by its kind; gold is in none.
QStringList thingLists()
{
    return {QString(), str("data/Items"), str("data/Weapons"), str("data/Armors")};
}

} // namespace

QuickWords::QuickWords(const StartData *start, const RowSources *sources, const MapBoard *board)
    : m_start(start)
    , m_sources(sources)
    , m_board(board)
{
}

void QuickWords::addTo(Commands &commands, RowSources &sources)
{
    sources.addRoot(quickFile(), [](const DataLayer & /*layer*/) -> std::optional<DataPlace> {
        return DataPlace{quickFile(), QString()};
    });
    commands.add(str("quick.begin"),
                 [this](DataLayer &layer, const CommandCall &call) { begin(call.argument, layer); });
    commands.add(str("quick.accept"), [this](DataLayer &layer) { accept(layer); });
}

void QuickWords::begin(const QString &kind, DataLayer &layer) const
{
    QJsonObject form = QuickEvents::form(kind);
    form.insert(str("kind"), kind);
    if (form.contains(str("map"))) {
        form.insert(str("map"), m_board->number());
    }
    layer.change({{quickFile(), form}}, QString());
}

void QuickWords::accept(DataLayer &layer) const
{
    QJsonObject form = layer.file(quickFile()).toObject();
    const QString list = thingLists().value(form.value(str("what")).toInt());
    if (!list.isEmpty()) {
        const QJsonValue thing = m_sources->entry(list, form.value(str("number")).toInt(), layer);
        form.insert(str("name"), thing[QLatin1String("name")]);
    }
    const QString map = MapTree::fileOf(m_board->number());
    MapEvents events(layer.file(map));
    const QJsonObject event = QuickEvents::made(form.value(str("kind")).toString(), form, m_start->texts);
    if (!event.isEmpty() && events.isFree(m_board->cursor())) {
        const int number = events.add(event, m_board->cursor());
        layer.change({{map, events.toFile()}}, QString());
        layer.select(MapEvents::path(), number);
    }
    layer.change({{quickFile(), QJsonValue(QJsonValue::Undefined)}}, QString());
    layer.accept();
}
