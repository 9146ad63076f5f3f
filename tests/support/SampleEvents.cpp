#include "SampleEvents.h"

#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

// Codes of commands.
constexpr int kEnd = 0;
constexpr int kSwitches = 121;
constexpr int kSelfSwitch = 123;
constexpr int kParty = 129;
constexpr int kBattle = 301;

/// The letter of the self switch that the page waits for, empty if it waits for none.
QString selfSwitch(const sample::EventPage &page)
{
    const QJsonObject conditions = page.page.value(QLatin1String("conditions")).toObject();
    return conditions.value(QLatin1String("selfSwitch")).toString();
}

} // namespace

namespace sample {

QJsonArray objectsIn(const QJsonValue &list, const char *key)
{
    return list.toObject().value(QLatin1String(key)).toArray();
}

int number(const QJsonValue &object, const char *key)
{
    return object.toObject().value(QLatin1String(key)).toInt();
}

QStringList mapFiles(const Files &files)
{
    return QStringList(files.keys()).filter(QRegularExpression(QStringLiteral("^Map\\d+\\.json$")));
}

int mapNumber(const QString &file)
{
    return file.mid(3, 3).toInt();
}

QVector<EventPage> eventPages(const Files &files)
{
    QVector<EventPage> pages;
    const QStringList names = mapFiles(files);
    for (const QString &name : names) {
        const QJsonArray events = objectsIn(files.value(name).object(), "events");
        for (int id = 1; id < events.size(); ++id) {
            const QJsonArray list = objectsIn(events.at(id), "pages");
            for (const QJsonValue &page : list) {
                pages.append(
                    {QStringLiteral("%1 event %2").arg(name).arg(id), page.toObject(), mapNumber(name)});
            }
        }
    }
    return pages;
}

QVector<CommandList> commandLists(const Files &files)
{
    QVector<CommandList> lists;
    const QVector<EventPage> pages = eventPages(files);
    for (const EventPage &page : pages) {
        lists.append({page.place, objectsIn(page.page, "list"), page.map, 0});
    }
    const QJsonArray events = entries(files, QStringLiteral("CommonEvents.json"));
    for (int id = 1; id < events.size(); ++id) {
        lists.append(
            {QStringLiteral("CommonEvents.json entry %1").arg(id), objectsIn(events.at(id), "list"), 0, 0});
    }
    const QJsonArray troops = entries(files, QStringLiteral("Troops.json"));
    for (int id = 1; id < troops.size(); ++id) {
        const QJsonArray troopPages = objectsIn(troops.at(id), "pages");
        for (const QJsonValue &page : troopPages) {
            lists.append({QStringLiteral("Troops.json entry %1").arg(id), objectsIn(page, "list"), 0,
                          int(objectsIn(troops.at(id), "members").size())});
        }
    }
    return lists;
}

QStringList unsetSwitches(const Files &files)
{
    QSet<int> switches;
    QSet<QString> selfSwitches;
    const QVector<CommandList> lists = commandLists(files);
    for (const CommandList &list : lists) {
        for (const QJsonValue &command : list.list) {
            const QJsonArray parameters = objectsIn(command, "parameters");
            if (number(command, "code") == kSwitches && parameters.at(2).toInt() == 0) {
                for (int id = parameters.at(0).toInt(); id <= parameters.at(1).toInt(); ++id) {
                    switches.insert(id);
                }
            } else if (number(command, "code") == kSelfSwitch) {
                selfSwitches.insert(list.place + QLatin1Char(' ') + parameters.at(0).toString());
            }
        }
    }
    QStringList unset;
    const QVector<EventPage> pages = eventPages(files);
    for (const EventPage &page : pages) {
        const int id = number(page.page.value(QLatin1String("conditions")), "switchId");
        if (id != 0 && !switches.contains(id)) {
            unset.append(QString::number(id));
        }
        const QString letter = selfSwitch(page);
        if (!letter.isEmpty() && !selfSwitches.contains(page.place + QLatin1Char(' ') + letter)) {
            unset.append(page.place + QLatin1Char(' ') + letter);
        }
    }
    unset.removeDuplicates();
    return unset;
}

QStringList battlesWonByFleeing(const Files &files)
{
    QStringList places;
    const QVector<CommandList> lists = commandLists(files);
    for (const CommandList &list : lists) {
        for (int i = 0; i + 1 < list.list.size(); ++i) {
            const QJsonArray parameters = objectsIn(list.list.at(i), "parameters");
            const bool goesOn = parameters.at(2).toBool() || parameters.at(3).toBool();
            if (number(list.list.at(i), "code") == kBattle && goesOn &&
                number(list.list.at(i + 1), "code") != kEnd) {
                places.append(list.place);
            }
        }
    }
    return places;
}

QList<int> companions(const Files &files)
{
    QMap<QString, int> joining;
    QSet<QString> leaving;
    const QStringList unset = unsetSwitches(files);
    const QVector<EventPage> pages = eventPages(files);
    for (const EventPage &page : pages) {
        const QJsonArray list = objectsIn(page.page, "list");
        for (const QJsonValue &command : list) {
            const QJsonArray parameters = objectsIn(command, "parameters");
            if (number(command, "code") == kParty && parameters.at(1).toInt() == 0) {
                joining.insert(page.place, parameters.at(0).toInt());
            }
        }
        const QString letter = selfSwitch(page);
        const bool isGone = page.page.value(QLatin1String("image")).toString().isEmpty() && list.size() == 1;
        if (isGone && !letter.isEmpty() && !unset.contains(page.place + QLatin1Char(' ') + letter)) {
            leaving.insert(page.place);
        }
    }
    QList<int> actors;
    for (auto it = joining.begin(); it != joining.end(); ++it) {
        if (leaving.contains(it.key())) {
            actors.append(it.value());
        }
    }
    std::sort(actors.begin(), actors.end());
    return actors;
}

} // namespace sample
