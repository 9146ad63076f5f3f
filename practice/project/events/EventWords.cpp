#include "project/events/EventWords.h"

#include "project/MapTree.h"
#include "project/events/MapEvents.h"

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

QString pagesSource()
{
    return str("eventPages");
}

} // namespace

EventWords::EventWords(const StartData *start, const RowSources *sources, MapBoard *board,
                       const EditorTools *tools)
    : m_start(start)
    , m_sources(sources)
    , m_board(board)
    , m_tools(tools)
{
}

void EventWords::addTo(Commands &commands, Fields &fields, RowSources &sources)
{
    const auto isThere = [this](const DataLayer &layer, const QString & /*argument*/) {
        return underCursor(layer) != 0;
    };
    fields.add(str("mode.isEvent"), [this](const DataLayer & /*layer*/) { return m_tools->isEventMode(); });
    fields.add(str("event.isThere"), [this](const DataLayer &layer) { return underCursor(layer) != 0; });
    commands.add(str("event.edit"), [this](DataLayer &layer) { edit(layer); });
    commands.add(
        str("event.copy"),
        [this](DataLayer &layer) { m_copiedEvent = eventsOf(layer).event(underCursor(layer)); }, {}, isThere);
    commands.add(
        str("event.paste"), [this](DataLayer &layer) { paste(layer); }, {},
        [this](const DataLayer &layer, const QString & /*argument*/) {
            return !m_copiedEvent.isEmpty() && eventsOf(layer).isFree(m_board->cursor());
        });
    commands.add(
        str("event.remove"), [this](DataLayer &layer) { remove(layer); }, {}, isThere);
    addPages(commands, sources);
}

void EventWords::addTo(StateParts &states)
{
    const QString event = str("event");
    const QString page = str("page");
    states.addCopied(
        str("copiedEvent"),
        [this, event, page] {
            return QJsonObject{{event, m_copiedEvent}, {page, m_copiedPage}};
        },
        [this, event, page](const QJsonValue &value) {
            if (value.isObject()) {
                m_copiedEvent = value.toObject().value(event).toObject();
                m_copiedPage = value.toObject().value(page).toObject();
            }
        });
}

void EventWords::addPages(Commands &commands, RowSources &sources)
{
    sources.add(pagesSource(), [this](const DataLayer &layer) {
        QVector<Row> rows;
        const int count = int(pages(layer).size());
        for (int page = 0; page < count; ++page) {
            rows.append({QString::number(page + 1), page});
        }
        return rows;
    });
    commands.add(str("eventPage.new"), [this](DataLayer &layer) {
        changePages(layer, [](QJsonArray *pages, int *current) {
            pages->insert(++*current, MapEvents::blankPage());
        });
    });
    commands.add(str("eventPage.copy"), [this](DataLayer &layer) {
        m_copiedPage = pages(layer).at(m_sources->number(pagesSource(), layer)).toObject();
    });
    commands.add(
        str("eventPage.paste"),
        [this](DataLayer &layer) {
            changePages(layer,
                        [this](QJsonArray *pages, int *current) { pages->insert(++*current, m_copiedPage); });
        },
        {}, [this](const DataLayer &, const QString &) { return !m_copiedPage.isEmpty(); });
    commands.add(
        str("eventPage.remove"),
        [this](DataLayer &layer) {
            changePages(layer, [](QJsonArray *pages, int *current) {
                if (pages->size() > 1) {
                    pages->removeAt(*current);
                }
            });
        },
        {}, [this](const DataLayer &layer, const QString &) { return pages(layer).size() > 1; });
}

QString EventWords::mapFile(const DataLayer &layer) const
{
    return MapTree::fileOf(m_sources->number(str("maps"), layer));
}

MapEvents EventWords::eventsOf(const DataLayer &layer) const
{
    return MapEvents(layer.file(mapFile(layer)));
}

int EventWords::underCursor(const DataLayer &layer) const
{
    return eventsOf(layer).at(m_board->cursor());
}

void EventWords::edit(DataLayer &layer) const
{
    MapEvents events = eventsOf(layer);
    int number = events.at(m_board->cursor());
    if (number == 0 && events.isFree(m_board->cursor())) {
        const QString name = m_start->texts.value(str("newEventName"));
        number = events.add(MapEvents::blank(QString()), m_board->cursor());
        events.rename(number, name.arg(number));
        layer.change({{mapFile(layer), events.toFile()}}, QString());
    }
    layer.select(MapEvents::path(), number);
    layer.select(pagesSource(), 0);
    // What was chosen last for another event says nothing about this one.
    layer.select(str("commandTab"), 0);
    layer.select(str("commandsOfTab"),
                 m_start->eventCommands.codesIn(EventCommands::tabs().constFirst()).value(0));
}

void EventWords::paste(DataLayer &layer) const
{
    MapEvents events = eventsOf(layer);
    const int number = events.add(m_copiedEvent, m_board->cursor());
    layer.change({{mapFile(layer), events.toFile()}}, QString());
    layer.select(MapEvents::path(), number);
}

void EventWords::remove(DataLayer &layer) const
{
    MapEvents events = eventsOf(layer);
    events.remove(events.at(m_board->cursor()));
    layer.change({{mapFile(layer), events.toFile()}}, QString());
}

std::optional<DataPlace> EventWords::pagesPlace(const DataLayer &layer) const
{
    return m_sources->place(MapEvents::path() + str("/{events}/pages"), layer);
}

QJsonArray EventWords::pages(const DataLayer &layer) const
{
    const std::optional<DataPlace> place = pagesPlace(layer);
    return place ? layer.value(place->file, place->pointer).toArray() : QJsonArray();
}

void EventWords::changePages(DataLayer &layer, const PageChange &change) const
{
    const std::optional<DataPlace> place = pagesPlace(layer);
    const int before = m_sources->number(pagesSource(), layer);
    if (!place || before < 0) {
        return;
    }
    QJsonArray changed = pages(layer);
    int current = before;
    change(&changed, &current);
    layer.set(place->file, place->pointer, changed);
    layer.select(pagesSource(), qMin(current, int(changed.size()) - 1));
}
