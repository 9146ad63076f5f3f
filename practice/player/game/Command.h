#pragma once

#include "player/game/Sound.h"

#include <QJsonArray>
#include <QString>
#include <QVector>

namespace player {

/// One command of an event. The parameters are read with defaults: one that is missing or has another type
/// counts as 0, "" or false.
struct Command
{
    int code = 0;
    int indent = 0;
    QJsonArray parameters;

    [[nodiscard]] int number(int place) const { return parameters.at(place).toInt(); }
    [[nodiscard]] bool flag(int place) const { return parameters.at(place).toBool(); }
    [[nodiscard]] QString text(int place) const { return parameters.at(place).toString(); }
};

using CommandList = QVector<Command>;

/// One step of a movement route.
struct RouteStep
{
    static constexpr int kLastCode = 27;

    int code = 0;
    QJsonArray parameters;

    [[nodiscard]] bool isKnown() const { return code >= 1 && code <= kLastCode; }
    /// Whether it turns a switch on or off that there cannot be.
    [[nodiscard]] bool namesWildSwitch() const;
    /// What is wrong with it, for whoever made the route; empty when it can be done.
    [[nodiscard]] QString complaint() const;
};

struct Route
{
    QVector<RouteStep> steps;
    bool repeats = false;
    /// What is in the way is passed by; otherwise the step waits until it is gone.
    bool isSkippable = false;
    /// The event that gives the route waits until it is walked.
    bool waits = false;

    [[nodiscard]] static Route fromJson(const QJsonValue &route);
};

[[nodiscard]] CommandList commandsFromJson(const QJsonValue &list);

} // namespace player
