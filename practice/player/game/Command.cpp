#include "player/game/Command.h"

#include "player/game/JsonRead.h"
#include "player/game/Numbers.h"

#include <QCoreApplication>

namespace player {

bool RouteStep::namesWildSwitch() const
{
    constexpr int kSwitchOn = 17;
    constexpr int kSwitchOff = 18;
    const int id = parameters.at(0).toInt();
    return (code == kSwitchOn || code == kSwitchOff) && (id < 1 || id > kLargestNumber);
}

QString RouteStep::complaint() const
{
    if (!isKnown()) {
        return QCoreApplication::translate("TestPlay", "There is no movement %1; it is passed by.").arg(code);
    }
    if (namesWildSwitch()) {
        return QCoreApplication::translate("TestPlay",
                                           "There is no switch or variable %1; the numbers go from 1 to %2.")
            .arg(parameters.at(0).toInt())
            .arg(kLargestNumber);
    }
    return {};
}

Route Route::fromJson(const QJsonValue &route)
{
    Route read;
    const QJsonArray steps = JsonRead::list(route, "list");
    for (const QJsonValue &step : steps) {
        const int code = JsonRead::number(step, "code");
        if (code == 0) {
            break;
        }
        read.steps.append({code, JsonRead::list(step, "parameters")});
    }
    read.repeats = JsonRead::flag(route, "repeat");
    read.isSkippable = JsonRead::flag(route, "skippable");
    read.waits = JsonRead::flag(route, "wait");
    return read;
}

CommandList commandsFromJson(const QJsonValue &list)
{
    CommandList commands;
    const QJsonArray entries = list.toArray();
    commands.reserve(int(entries.size()));
    for (const QJsonValue &entry : entries) {
        commands.append({JsonRead::number(entry, "code"), qMax(0, JsonRead::number(entry, "indent")),
                         JsonRead::list(entry, "parameters")});
    }
    return commands;
}

} // namespace player
