#include "project/events/EventSearch.h"

#include "project/MapTree.h"
#include "project/events/MapEvents.h"
#include "project/events/MovementWay.h"

#include <algorithm>

namespace {

using EventSearch::By;
using EventSearch::Wanted;

/// Codes of the commands that speak of switches or variables.
constexpr int kBranch = 111;
constexpr int kSwitches = 121;
constexpr int kVariables = 122;
constexpr int kRoute = 205;
/// What a branch asks for, its parameter 0.
constexpr int kAsksSwitch = 0;
constexpr int kAsksVariable = 1;

bool isWithin(int number, const QJsonArray &range)
{
    return number >= range.at(0).toInt() && number <= range.at(1).toInt();
}

bool routeUses(const QJsonValue &route, int number)
{
    const QJsonArray steps = route[QLatin1String("list")].toArray();
    return std::any_of(steps.begin(), steps.end(), [number](const QJsonValue &step) {
        const int code = step[QLatin1String("code")].toInt();
        return (code == MovementWay::kSwitchOn || code == MovementWay::kSwitchOff) &&
               step[QLatin1String("parameters")].toArray().at(0).toInt() == number;
    });
}

bool commandUses(const QJsonValue &command, const Wanted &wanted)
{
    const QJsonArray parameters = command[QLatin1String("parameters")].toArray();
    const bool isSwitch = wanted.by == By::kSwitch;
    switch (command[QLatin1String("code")].toInt()) {
    case kBranch:
        return parameters.at(0).toInt(-1) == (isSwitch ? kAsksSwitch : kAsksVariable) &&
               parameters.at(1).toInt() == wanted.number;
    case kSwitches:
        return isSwitch && isWithin(wanted.number, parameters);
    case kVariables:
        return !isSwitch && isWithin(wanted.number, parameters);
    case kRoute:
        return isSwitch && routeUses(parameters.at(1), wanted.number);
    default:
        return false;
    }
}

bool pageUses(const QJsonValue &page, const Wanted &wanted)
{
    const QLatin1String member(wanted.by == By::kSwitch ? "switchId" : "variableId");
    const QJsonArray list = page[QLatin1String("list")].toArray();
    return page[QLatin1String("conditions")][member].toInt() == wanted.number ||
           (wanted.by == By::kSwitch && routeUses(page[QLatin1String("moveRoute")], wanted.number)) ||
           std::any_of(list.begin(), list.end(),
                       [&wanted](const QJsonValue &command) { return commandUses(command, wanted); });
}

bool isWanted(const QJsonObject &event, const Wanted &wanted)
{
    if (wanted.by == By::kName) {
        return event.value(QLatin1String("name")).toString().contains(wanted.name, Qt::CaseInsensitive);
    }
    const QJsonArray pages = event.value(QLatin1String("pages")).toArray();
    return wanted.number > 0 && std::any_of(pages.begin(), pages.end(), [&wanted](const QJsonValue &page) {
               return pageUses(page, wanted);
           });
}

} // namespace

QVector<EventSearch::Found> EventSearch::find(const Wanted &wanted, const QVector<int> &maps,
                                              const DataLayer &layer)
{
    QVector<Found> found;
    for (const int map : maps) {
        const MapEvents events(layer.file(MapTree::fileOf(map)));
        const QVector<MapEvents::Event> all = events.all();
        for (const MapEvents::Event &event : all) {
            if (isWanted(events.event(event.number), wanted)) {
                found.append({map, event.number, event.cell, event.name});
            }
        }
    }
    return found;
}
