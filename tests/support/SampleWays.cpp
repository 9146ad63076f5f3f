#include "SampleWays.h"

#include "SampleEvents.h"

#include <algorithm>
#include <iterator>

namespace {

using sample::number;
using sample::objectsIn;
using sample::Place;

constexpr int kByAsking = 0;
constexpr int kByTouch = 1;
constexpr int kTransfer = 201;

QString text(const Place &place)
{
    return QStringLiteral("(%1, %2) of map %3").arg(place.x).arg(place.y).arg(place.map);
}

/// Whether anything can happen in it.
bool hasCommands(const QJsonObject &page)
{
    return objectsIn(page, "list").size() > 1;
}

bool hasPicture(const QJsonObject &page)
{
    return !page.value(QLatin1String("image")).toString().isEmpty();
}

} // namespace

namespace sample {

Ways::Ways(const Files &files)
    : m_ground(files)
{
    const QJsonObject system = files.value(QStringLiteral("System.json")).object();
    m_start = {number(system, "startMapId"), number(system, "startX"), number(system, "startY")};
    const QStringList names = mapFiles(files);
    for (const QString &name : names) {
        m_maps.insert(mapNumber(name));
        readMap(files, mapNumber(name));
    }
    m_reached = reachedFrom(m_start);
}

QSet<int> Ways::unreachedMaps() const
{
    QSet<int> unreached = m_maps;
    for (const Place &place : m_reached) {
        unreached.remove(place.map);
    }
    return unreached;
}

QStringList Ways::findings() const
{
    QStringList findings;
    if (!canStand(m_start)) {
        findings.append(QStringLiteral("System.json: nobody can stand at the start %1").arg(text(m_start)));
    }
    const QSet<int> unreached = unreachedMaps();
    for (const Figure &figure : m_figures) {
        if (!unreached.contains(figure.place.map) && !isReached(figure)) {
            findings.append(QStringLiteral("%1: nobody gets to %2").arg(figure.event, text(figure.place)));
        }
    }
    findings += targetFindings();
    for (const auto &[from, transfer] : m_transfers) {
        findings += exitFindings(from, transfer);
    }
    return findings;
}

void Ways::readMap(const Files &files, int id)
{
    const QJsonObject object = map(files, id);
    const QJsonArray events = objectsIn(object, "events");
    for (const QJsonValue &event : events) {
        if (event.isObject()) {
            readEvent(id, event.toObject());
        }
    }
}

void Ways::readEvent(int map, const QJsonObject &event)
{
    const Place place = {map, number(event, "x"), number(event, "y")};
    const QString name = QStringLiteral("%1 event %2").arg(mapFile(map)).arg(number(event, "id"));
    bool isWay = false;
    bool isFigure = false;
    bool isAsked = false;
    const QJsonArray pages = objectsIn(event, "pages");
    for (const QJsonValue &value : pages) {
        const QJsonObject page = value.toObject();
        const int trigger = number(page, "trigger");
        isWay = isWay || trigger == kByTouch;
        isFigure = isFigure || (trigger == kByAsking && hasPicture(page));
        isAsked = isAsked || (trigger == kByAsking && hasCommands(page));
        const QJsonArray list = objectsIn(page, "list");
        for (const QJsonValue &command : list) {
            const QJsonArray parameters = objectsIn(command, "parameters");
            if (trigger == kByTouch && number(command, "code") == kTransfer) {
                const Place to = {parameters.at(1).toInt(), parameters.at(2).toInt(),
                                  parameters.at(3).toInt()};
                m_transfers.insert({place, {name, to}});
            }
        }
    }
    if (isFigure && !isWay) {
        m_blocked.insert(place);
    }
    if (isWay || isAsked) {
        m_figures.append({name, place, isWay});
    }
}

bool Ways::canStand(const Place &place) const
{
    return m_ground.canWalk(place) && m_blocked.count(place) == 0;
}

bool Ways::isReached(const Figure &figure) const
{
    if (figure.byTouch) {
        return m_reached.count(figure.place) > 0;
    }
    const QVector<Place> around = besides(figure.place);
    return std::any_of(around.begin(), around.end(),
                       [this](const Place &place) { return m_reached.count(place) > 0; });
}

std::set<Place> Ways::reachedFrom(const Place &start) const
{
    std::set<Place> reached;
    QVector<Place> open = {start};
    while (!open.isEmpty()) {
        const Place place = open.takeLast();
        if (!canStand(place) || !reached.insert(place).second) {
            continue;
        }
        const auto transfer = m_transfers.find(place);
        open += transfer != m_transfers.end() ? QVector<Place>{transfer->second.to} : besides(place);
    }
    return reached;
}

std::set<Place> Ways::leadingTo(const Place &end) const
{
    std::set<Place> leading;
    QVector<Place> open = {end};
    while (!open.isEmpty()) {
        const Place place = open.takeLast();
        if (!canStand(place) || !leading.insert(place).second) {
            continue;
        }
        const QVector<Place> around = besides(place);
        std::copy_if(around.begin(), around.end(), std::back_inserter(open),
                     [this](const Place &from) { return m_transfers.count(from) == 0; });
        for (const auto &[from, transfer] : m_transfers) {
            if (!(transfer.to < place) && !(place < transfer.to)) {
                open.append(from);
            }
        }
    }
    return leading;
}

QStringList Ways::targetFindings() const
{
    const std::set<Place> leadingBack = leadingTo(m_start);
    QStringList findings;
    for (const auto &[from, transfer] : m_transfers) {
        if (!canStand(transfer.to) || m_transfers.count(transfer.to) > 0) {
            findings.append(
                QStringLiteral("%1: nobody can stand at %2").arg(transfer.event, text(transfer.to)));
        } else if (m_reached.count(from) > 0 && leadingBack.count(transfer.to) == 0) {
            findings.append(
                QStringLiteral("%1: nobody comes back from %2").arg(transfer.event, text(transfer.to)));
        }
    }
    return findings;
}

/// The cells beside a transfer that belong to the same exit: on the edge of the map those that can be walked
/// on, inside of it those of the same door.
QStringList Ways::exitFindings(const Place &from, const Transfer &transfer) const
{
    QStringList findings;
    const QVector<Place> around = besides(from);
    for (const Place &place : around) {
        const bool isSameEdge = m_ground.isOnEdge(from) && m_ground.isOnEdge(place);
        const bool isSameDoor = m_ground.isDoor(from) && m_ground.isDoor(place);
        if ((isSameEdge || isSameDoor) && canStand(place) && m_transfers.count(place) == 0) {
            findings.append(
                QStringLiteral("%1: the cell beside it %2 leads nowhere").arg(transfer.event, text(place)));
        }
    }
    return findings;
}

} // namespace sample
