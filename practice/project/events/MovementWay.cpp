#include "project/events/MovementWay.h"

#include <QJsonObject>

namespace MovementWay {

namespace {

int codeAt(const QJsonArray &route, int place)
{
    return route.at(place)[QLatin1String("code")].toInt();
}

QPoint step(int direction)
{
    switch (direction) {
    case kDown:
        return {0, 1};
    case kLeft:
        return {-1, 0};
    case kRight:
        return {1, 0};
    case kUp:
        return {0, -1};
    default:
        return {0, 0};
    }
}

} // namespace

QVector<QPoint> cells(const QJsonArray &route, const QPoint &start)
{
    QVector<QPoint> cells{start};
    int facing = kDown;
    for (int place = 0; place < route.size(); ++place) {
        const int code = codeAt(route, place);
        QPoint way;
        if (code >= kDown && code <= kUp) {
            facing = code;
            way = step(facing);
        } else if (code >= kTurnDown && code <= kTurnUp) {
            facing = kDown + code - kTurnDown;
        } else if (code == kForward || code == kBack) {
            way = code == kForward ? step(facing) : -step(facing);
        } else if (code == kJump) {
            const QJsonArray far = route.at(place)[QLatin1String("parameters")].toArray();
            way = {far.at(0).toInt(), far.at(1).toInt()};
        }
        if (!way.isNull()) {
            cells.append(cells.constLast() + way);
        }
    }
    return cells;
}

int insert(QJsonArray *route, int place, const QJsonValue &command)
{
    if (route->isEmpty() || codeAt(*route, int(route->size()) - 1) != kEnd) {
        route->append(QJsonObject{{QStringLiteral("code"), kEnd}});
    }
    const int at = qBound(0, place + 1, int(route->size()) - 1);
    route->insert(at, command);
    return at;
}

void remove(QJsonArray *route, int place)
{
    if (place >= 0 && place < route->size() && codeAt(*route, place) != kEnd) {
        route->removeAt(place);
    }
}

} // namespace MovementWay
