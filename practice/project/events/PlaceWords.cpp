#include "project/events/PlaceWords.h"

#include "project/MapTree.h"
#include "project/events/MapEvents.h"
#include "project/events/MovementWay.h"

#include <QJsonObject>

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

/// Who takes a route, beside the events of the map with their numbers.
constexpr int kPlayer = -1;
constexpr int kThisEvent = 0;

/// What is chosen stands in drafts alone.
QString placeFile()
{
    return str("place");
}

QString routeMark()
{
    return str("route");
}

QString targetMark()
{
    return str("routeTarget");
}

QString stepsPath()
{
    return str("route/list");
}

/// Stands in place of the path of a map that is not asked: it is the map on show.
QString noPath()
{
    return str("-");
}

QString intoMember()
{
    return str("into");
}

/// What the paths of a place are for, in their order.
QStringList placeMembers()
{
    return {str("map"), str("x"), str("y"), str("direction")};
}

QJsonValue at(const std::optional<DataPlace> &place, const DataLayer &layer)
{
    return place ? layer.value(place->file, place->pointer) : QJsonValue(QJsonValue::Undefined);
}

QJsonArray steps(const DataLayer &layer)
{
    const std::optional<DataPlace> route = layer.mark(routeMark());
    return at(route, layer)[QLatin1String("list")].toArray();
}

void setSteps(const QJsonArray &steps, int selected, DataLayer &layer)
{
    if (const std::optional<DataPlace> route = layer.mark(routeMark())) {
        layer.set(route->file, route->pointer + str("/list"), steps);
        layer.select(stepsPath(), selected);
    }
}

} // namespace

PlaceWords::PlaceWords(const StartData *start, const RowSources *sources)
    : m_start(start)
    , m_sources(sources)
{
}

void PlaceWords::addTo(Commands &commands, Fields &fields, RowSources &sources)
{
    sources.addRoot(placeFile(), [](const DataLayer & /*layer*/) -> std::optional<DataPlace> {
        return DataPlace{placeFile(), QString()};
    });
    commands.add(str("place.begin"), [this, &fields](DataLayer &layer, const CommandCall &call) {
        beginPlace(call.argument, fields, layer);
    });
    commands.add(str("place.accept"), [&fields](DataLayer &layer) { acceptPlace(fields, layer); });
    fields.add(str("place.hasDirection"), [](const DataLayer &layer) {
        return !layer.value(placeFile(), str("/direction")).isUndefined();
    });
    fields.add(str("place.hasMap"), [](const DataLayer &layer) {
        return layer.value(placeFile(), str("/into/0")).toString() != noPath();
    });
    addRoutes(commands, fields, sources);
}

void PlaceWords::beginPlace(const QString &paths, const Fields &fields, DataLayer &layer) const
{
    QJsonObject place;
    const QStringList into = paths.split(QLatin1Char(' '));
    for (int i = 0; i < qMin(into.size(), placeMembers().size()); ++i) {
        if (into.at(i) != noPath()) {
            place.insert(placeMembers().at(i), fields.value(into.at(i), layer).toInt());
        }
    }
    const int map = place.value(str("map")).toInt();
    if (!layer.file(MapTree::fileOf(map)).isObject()) {
        place.insert(str("map"), m_sources->number(str("maps"), layer));
    }
    place.insert(intoMember(), QJsonArray::fromStringList(into));
    layer.change({{placeFile(), place}}, QString());
}

void PlaceWords::acceptPlace(const Fields &fields, DataLayer &layer)
{
    const QJsonObject place = layer.file(placeFile()).toObject();
    const QJsonArray into = place.value(intoMember()).toArray();
    for (int i = 0; i < qMin(int(into.size()), int(placeMembers().size())); ++i) {
        if (into.at(i).toString() != noPath()) {
            fields.setValue(into.at(i).toString(), place.value(placeMembers().at(i)).toInt(), layer);
        }
    }
    layer.change({{placeFile(), QJsonValue(QJsonValue::Undefined)}}, QString());
    layer.accept();
}

void PlaceWords::addRoutes(Commands &commands, Fields &fields, RowSources &sources)
{
    sources.addRoot(routeMark(), [](const DataLayer &layer) { return layer.mark(routeMark()); });
    sources.add(str("routeTargets"), [this](const DataLayer &layer) { return targets(layer); });
    commands.add(str("route.begin"),
                 [this](DataLayer &layer, const CommandCall &call) { beginRoute(call.argument, layer); });
    commands.add(str("route.add"), [this](DataLayer &layer, const CommandCall &call) {
        QJsonArray edited = steps(layer);
        const int place = MovementWay::insert(&edited, m_sources->number(call.argument, layer), call.entry);
        setSteps(edited, place, layer);
    });
    commands.add(
        str("route.remove"),
        [this](DataLayer &layer) {
            QJsonArray edited = steps(layer);
            const int place = m_sources->number(stepsPath(), layer);
            MovementWay::remove(&edited, place);
            setSteps(edited, place, layer);
        },
        {},
        [this](const DataLayer &layer, const QString & /*argument*/) {
            const QJsonValue step = steps(layer).at(m_sources->number(stepsPath(), layer));
            return step[QLatin1String("code")].toInt() != MovementWay::kEnd;
        });
    fields.add(str("route.hasTarget"), [](const DataLayer &layer) {
        const std::optional<DataPlace> target = layer.mark(targetMark());
        return target && !target->file.isEmpty();
    });
    fields.add(
        str("route.target"),
        [](const DataLayer &layer) { return at(layer.mark(targetMark()), layer).toInt(); },
        [](DataLayer &layer, const QVariant &value) {
            if (const std::optional<DataPlace> target = layer.mark(targetMark())) {
                layer.set(target->file, target->pointer, value.toInt());
            }
        });
    fields.add(str("route.start"), [this](const DataLayer &layer) { return startOfRoute(layer); });
    fields.add(str("route.hasValue"), [this](const DataLayer &layer) {
        const QJsonValue step = steps(layer).at(m_sources->number(stepsPath(), layer));
        return step.toObject().contains(str("parameters"));
    });
}

void PlaceWords::beginRoute(const QString &paths, DataLayer &layer) const
{
    const QStringList words = paths.split(QLatin1Char(' '));
    const std::optional<DataPlace> route = m_sources->place(words.constFirst(), layer);
    if (!route) {
        return;
    }
    layer.setMark(routeMark(), *route);
    layer.setMark(targetMark(), m_sources->place(words.value(1), layer).value_or(DataPlace()));
    if (!at(route, layer).isObject()) {
        const QJsonArray nothing{QJsonObject{{str("code"), MovementWay::kEnd}}};
        layer.set(route->file, route->pointer, QJsonObject{{str("list"), nothing}, {str("repeat"), true}});
    }
    // What is added comes ahead of the end.
    layer.select(stepsPath(), int(steps(layer).size()) - 1);
}

QPoint PlaceWords::startOfRoute(const DataLayer &layer) const
{
    const int map = m_sources->number(str("maps"), layer);
    const QJsonValue file = layer.file(MapTree::fileOf(map));
    const std::optional<DataPlace> mark = layer.mark(targetMark());
    const int target = mark && !mark->file.isEmpty() ? at(mark, layer).toInt() : kThisEvent;
    const QJsonValue system = layer.file(str("data/System.json"));
    if (target == kPlayer && system[QLatin1String("startMapId")].toInt() == map) {
        return {system[QLatin1String("startX")].toInt(), system[QLatin1String("startY")].toInt()};
    }
    const QVector<MapEvents::Event> events = MapEvents(file).all();
    // Nobody knows where the player is on a map that the game does not begin on.
    const bool isOfMap = target != kThisEvent && target != kPlayer;
    const int wanted = isOfMap ? target : layer.selected(MapEvents::path());
    for (const MapEvents::Event &event : events) {
        if (event.number == wanted) {
            return event.cell;
        }
    }
    return {file[QLatin1String("width")].toInt() / 2, file[QLatin1String("height")].toInt() / 2};
}

QVector<Row> PlaceWords::targets(const DataLayer &layer) const
{
    QVector<Row> rows{{m_start->texts.value(str("player")), kPlayer},
                      {m_start->texts.value(str("thisEvent")), kThisEvent}};
    const int map = m_sources->number(str("maps"), layer);
    const QVector<MapEvents::Event> events = MapEvents(layer.file(MapTree::fileOf(map))).all();
    for (const MapEvents::Event &event : events) {
        rows.append({event.name, event.number});
    }
    return rows;
}
