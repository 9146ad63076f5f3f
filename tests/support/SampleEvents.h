#pragma once

#include "SampleFiles.h"

#include <QJsonArray>
#include <QStringList>
#include <QVector>

/// The events of a step and their commands, wherever they stand.
namespace sample {

/// A list of commands.
struct CommandList
{
    QString place;
    QJsonArray list;
    /// The map's number for an event on it, 0 elsewhere.
    int map = 0;
    /// How many enemies there are for a troop's page, 0 elsewhere.
    int enemies = 0;
};

struct EventPage
{
    QString place;
    QJsonObject page;
    int map = 0;
};

/// The array at @p key of an object, empty if there is none.
QJsonArray objectsIn(const QJsonValue &object, const char *key);
/// The number at @p key of an object, 0 if there is none.
int number(const QJsonValue &object, const char *key);

/// The names of the files that hold maps.
QStringList mapFiles(const Files &files);
/// The 7 of "Map007.json".
int mapNumber(const QString &file);

QVector<EventPage> eventPages(const Files &files);
QVector<CommandList> commandLists(const Files &files);

/// What pages wait for in vain: the number of each switch that no command turns on, and, as "Map001.json
/// event 3 A", each self switch that its event does not turn on.
QStringList unsetSwitches(const Files &files);

/// The places of battles that go on as if they were won when the player flees or loses.
QStringList battlesWonByFleeing(const Files &files);

/// Who can join the party, by the actor's number: somebody adds the actor and then goes from the map, for
/// good.
QList<int> companions(const Files &files);

} // namespace sample
