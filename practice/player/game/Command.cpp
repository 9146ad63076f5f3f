#include "player/game/Command.h"

#include "player/game/JsonRead.h"

namespace player {

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
