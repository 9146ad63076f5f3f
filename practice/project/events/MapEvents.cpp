#include "project/events/MapEvents.h"

#include "project/events/CommandBlock.h"

#include <QRect>

#include <algorithm>
#include <cstdlib>

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

/// No cell.
constexpr QPoint kNowhere(-1, -1);

} // namespace

QString MapEvents::path()
{
    return str("data/Map{maps}/events");
}

MapEvents::MapEvents(const QJsonValue &mapFile)
    : m_file(mapFile.toObject())
    , m_size(m_file.value(str("width")).toInt(), m_file.value(str("height")).toInt())
    , m_events(m_file.value(str("events")).toArray())
{
}

QJsonValue MapEvents::toFile() const
{
    QJsonObject file = m_file;
    file.insert(str("events"), m_events);
    return file;
}

QPoint MapEvents::cellOf(const QJsonValue &event)
{
    return {event[QLatin1String("x")].toInt(), event[QLatin1String("y")].toInt()};
}

QVector<MapEvents::Event> MapEvents::all() const
{
    QVector<Event> events;
    for (int number = 1; number < m_events.size(); ++number) {
        const QJsonValue event = m_events.at(number);
        if (event.isObject()) {
            const QJsonValue page = event[QLatin1String("pages")].toArray().at(0);
            events.append({number, cellOf(event), event[QLatin1String("name")].toString(),
                           page[QLatin1String("image")].toString()});
        }
    }
    return events;
}

int MapEvents::at(const QPoint &cell) const
{
    for (int number = 1; number < m_events.size(); ++number) {
        if (m_events.at(number).isObject() && cellOf(m_events.at(number)) == cell) {
            return number;
        }
    }
    return 0;
}

QJsonObject MapEvents::event(int number) const
{
    return m_events.at(number).toObject();
}

bool MapEvents::isFree(const QPoint &cell) const
{
    return QRect(QPoint(), m_size).contains(cell) && at(cell) == 0;
}

int MapEvents::add(const QJsonObject &event, const QPoint &cell)
{
    if (m_events.isEmpty()) {
        m_events.append(QJsonValue());
    }
    int number = 1;
    while (number < m_events.size() && m_events.at(number).isObject()) {
        ++number;
    }
    QJsonObject added = event;
    added.insert(str("id"), number);
    added.insert(str("x"), cell.x());
    added.insert(str("y"), cell.y());
    if (number < m_events.size()) {
        m_events.replace(number, added);
    } else {
        m_events.append(added);
    }
    return number;
}

void MapEvents::remove(int number)
{
    if (number < 1 || number >= m_events.size()) {
        return;
    }
    m_events.replace(number, QJsonValue());
    // The list ends with an event, so that one that came and went leaves nothing behind.
    while (m_events.size() > 1 && m_events.last().isNull()) {
        m_events.removeLast();
    }
}

void MapEvents::move(int number, const QPoint &cell)
{
    QJsonObject moved = event(number);
    if (!moved.isEmpty()) {
        moved.insert(str("x"), cell.x());
        moved.insert(str("y"), cell.y());
        m_events.replace(number, moved);
    }
}

void MapEvents::rename(int number, const QString &name)
{
    QJsonObject renamed = event(number);
    if (!renamed.isEmpty()) {
        renamed.insert(str("name"), name);
        m_events.replace(number, renamed);
    }
}

int MapEvents::countOutside(const QSize &size) const
{
    const QVector<Event> events = all();
    return int(std::count_if(events.cbegin(), events.cend(), [&size](const Event &event) {
        return !QRect(QPoint(), size).contains(event.cell);
    }));
}

void MapEvents::keepInside(const QSize &size)
{
    m_size = size;
    const QVector<Event> events = all();
    for (const Event &event : events) {
        if (!QRect(QPoint(), size).contains(event.cell)) {
            const QPoint cell = nearestFree(event.cell);
            if (cell == kNowhere) {
                remove(event.number);
            } else {
                move(event.number, cell);
            }
        }
    }
}

QPoint MapEvents::nearestFree(const QPoint &cell) const
{
    const auto distance = [&cell](const QPoint &other) {
        return std::abs(other.x() - cell.x()) + std::abs(other.y() - cell.y());
    };
    QPoint nearest = kNowhere;
    for (int y = 0; y < m_size.height(); ++y) {
        for (int x = 0; x < m_size.width(); ++x) {
            const QPoint free(x, y);
            if ((nearest == kNowhere || distance(free) < distance(nearest)) && isFree(free)) {
                nearest = free;
            }
        }
    }
    return nearest;
}

QJsonObject MapEvents::blank(const QString &name)
{
    return {{str("name"), name}, {str("note"), QString()}, {str("pages"), QJsonArray{blankPage()}}};
}

QJsonObject MapEvents::blankPage()
{
    const QJsonObject conditions{{str("switchId"), 0}, {str("selfSwitch"), QString()}};
    return {{str("conditions"), conditions},
            {str("image"), QString()},
            {str("moveType"), 0},
            {str("trigger"), 0},
            {str("list"), QJsonArray{CommandBlock::entry(EventCommands::kEnd, 0)}}};
}
