#pragma once

#include <QJsonArray>
#include <QPoint>
#include <QVector>

/// The commands of a movement route, each an object with a "code", and some with "parameters". A list of them
/// ends with one of code kEnd.
namespace MovementWay {

enum Code {
    kEnd = 0,
    kDown = 1,
    kLeft = 2,
    kRight = 3,
    kUp = 4,
    kForward = 8,
    kBack = 9,
    kTurnDown = 10,
    kTurnUp = 13,
    kJump = 16,
    kSwitchOn = 17,
    kSwitchOff = 18,
};

/// The cells that the way leads through from @p start on, one for each command that moves. Where it goes by
/// chance or by where the player is, nobody knows: it stays.
[[nodiscard]] QVector<QPoint> cells(const QJsonArray &route, const QPoint &start);

/// @p route with a command behind the one at @p place, and ahead of the end; gives its place.
int insert(QJsonArray *route, int place, const QJsonValue &command);
/// Takes the command out, but not the end.
void remove(QJsonArray *route, int place);

} // namespace MovementWay
