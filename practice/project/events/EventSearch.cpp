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

/// Where a command says which variable it takes: in @c places, always or where parameter @c by is 1.
struct VariablePlaces
{
    int code;
    int by;
    QVector<int> places;
};

constexpr int kAlways = -1;

const QVector<VariablePlaces> &variablePlaces()
{
    static const QVector<VariablePlaces> places{
        {103, kAlways, {0}}, {104, kAlways, {0}}, {122, 3, {4}},       {125, 1, {2}},    {126, 2, {3}},
        {127, 2, {3}},       {128, 2, {3}},       {201, 0, {1, 2, 3}}, {202, 1, {2, 3}}, {231, 3, {4, 5}},
        {232, 2, {3, 4}},    {301, 0, {1}},       {311, 0, {1}},       {311, 3, {4}},    {312, 0, {1}},
        {312, 3, {4}},       {313, 0, {1}},       {314, 0, {1}},       {315, 0, {1}},    {315, 3, {4}},
        {316, 0, {1}},       {316, 3, {4}},       {317, 0, {1}},       {331, 2, {3}},    {332, 2, {3}}};
    return places;
}

bool takesVariable(int code, const QJsonArray &parameters, int number)
{
    for (const VariablePlaces &where : variablePlaces()) {
        if (where.code != code || (where.by != kAlways && parameters.at(where.by).toInt() != 1)) {
            continue;
        }
        for (const int place : where.places) {
            if (parameters.at(place).toInt() == number) {
                return true;
            }
        }
    }
    return false;
}

/// Whether a text says the variable, as in "\\v[3]".
bool saysVariable(const QJsonArray &parameters, int number)
{
    const QString word = QStringLiteral("\\v[%1]").arg(number);
    const auto says = [&word](const QJsonValue &parameter) {
        return parameter.toString().contains(word, Qt::CaseInsensitive);
    };
    return std::any_of(parameters.begin(), parameters.end(), says);
}

bool branchAsks(const QJsonArray &parameters, bool isSwitch, int number)
{
    if (parameters.at(0).toInt(-1) != (isSwitch ? kAsksSwitch : kAsksVariable)) {
        return false;
    }
    const bool isCompared = !isSwitch && parameters.at(4).toInt() == 1;
    return parameters.at(1).toInt() == number || (isCompared && parameters.at(5).toInt() == number);
}

/// Whichever of the two ends of the range is the smaller one.
bool isWithin(int number, const QJsonArray &range)
{
    const int one = range.at(0).toInt();
    const int other = range.at(1).toInt();
    return number >= qMin(one, other) && number <= qMax(one, other);
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
    const int code = command[QLatin1String("code")].toInt();
    if (code == kBranch) {
        return branchAsks(parameters, isSwitch, wanted.number);
    }
    if (isSwitch) {
        return (code == kSwitches && isWithin(wanted.number, parameters)) ||
               (code == kRoute && routeUses(parameters.at(1), wanted.number));
    }
    return (code == kVariables && isWithin(wanted.number, parameters)) ||
           takesVariable(code, parameters, wanted.number) || saysVariable(parameters, wanted.number);
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
