#include "SampleReferences.h"

#include "SampleEvents.h"

#include <QJsonArray>
#include <QSet>

#include <functional>

namespace {

using sample::CommandList;
using sample::EventPage;
using sample::Files;
using sample::number;
using sample::objectsIn;

/// Follows every reference of a step's files and notes those that lead nowhere.
class ReferenceCheck
{
public:
    explicit ReferenceCheck(const Files &files)
        : m_files(files)
    {
    }

    QStringList findings()
    {
        checkPeople();
        checkThings();
        checkFights();
        checkMaps();
        checkSystem();
        const QVector<EventPage> pages = sample::eventPages(m_files);
        for (const EventPage &page : pages) {
            checkConditions(page);
        }
        const QVector<CommandList> lists = sample::commandLists(m_files);
        for (const CommandList &list : lists) {
            for (const QJsonValue &command : list.list) {
                checkCommand(list, number(command, "code"), objectsIn(command, "parameters"));
            }
        }
        return m_findings;
    }

private:
    enum class Zero { kNobody, kAllowed };

    void add(const QString &place, const QString &what)
    {
        m_findings.append(place + QStringLiteral(": ") + what);
    }

    QJsonArray file(const char *name) const
    {
        return sample::entries(m_files, QLatin1String(name) + QStringLiteral(".json"));
    }

    /// Notes it unless @p id is an entry of the list file @p list.
    void need(const QString &place, const char *list, int id, Zero zero = Zero::kNobody)
    {
        if ((id == 0 && zero == Zero::kAllowed) || file(list).at(qMax(id, 0)).isObject()) {
            return;
        }
        add(place, QStringLiteral("no entry %1 in %2").arg(id).arg(QLatin1String(list)));
    }

    void needSwitch(const QString &place, int id)
    {
        const QJsonArray switches = system().value(QLatin1String("switches")).toArray();
        if (id < 1 || switches.at(id).toString().isEmpty()) {
            add(place, QStringLiteral("no name for switch %1").arg(id));
        }
    }

    void needCell(const QString &place, int map, int x, int y)
    {
        const QJsonObject object = sample::map(m_files, map);
        if (map < 1 || !file("MapInfos").at(map).isObject() || object.isEmpty()) {
            add(place, QStringLiteral("no map %1").arg(map));
        } else if (x < 0 || y < 0 || x >= number(object, "width") || y >= number(object, "height")) {
            add(place, QStringLiteral("no cell (%1, %2) in map %3").arg(x).arg(y).arg(map));
        }
    }

    QJsonObject system() const { return m_files.value(QStringLiteral("System.json")).object(); }

    /// Calls @p check for each entry of a list file with the place that a finding names.
    void forEach(const char *list, const std::function<void(const QString &, const QJsonObject &)> &check)
    {
        const QJsonArray entries = file(list);
        for (int id = 1; id < entries.size(); ++id) {
            check(QStringLiteral("%1.json entry %2").arg(QLatin1String(list)).arg(id),
                  entries.at(id).toObject());
        }
    }

    void checkStates(const QString &place, const QJsonObject &entry)
    {
        for (const char *list : {"effects", "traits"}) {
            const QJsonArray effects = objectsIn(entry, list);
            for (const QJsonValue &effect : effects) {
                for (const char *key : {"addState", "removeState", "resistState"}) {
                    if (effect.toObject().contains(QLatin1String(key))) {
                        need(place, "States", number(effect, key));
                    }
                }
            }
        }
    }

    void checkPeople()
    {
        forEach("Actors", [this](const QString &place, const QJsonObject &actor) {
            need(place, "Classes", number(actor, "classId"));
            const QJsonArray equips = objectsIn(actor, "equips");
            need(place, "Weapons", equips.at(0).toInt(), Zero::kAllowed);
            need(place, "Armors", equips.at(1).toInt(), Zero::kAllowed);
        });
        forEach("Classes", [this](const QString &place, const QJsonObject &entry) {
            const QJsonArray learnings = objectsIn(entry, "learnings");
            for (const QJsonValue &learning : learnings) {
                need(place, "Skills", number(learning, "skillId"));
            }
        });
    }

    void checkThings()
    {
        for (const char *list : {"Classes", "Skills", "Items", "Weapons", "Armors", "Enemies", "States"}) {
            forEach(list,
                    [this](const QString &place, const QJsonObject &entry) { checkStates(place, entry); });
        }
        forEach("Skills", [this](const QString &place, const QJsonObject &skill) {
            need(place, "Animations", number(skill, "animationId"), Zero::kAllowed);
        });
    }

    void checkFights()
    {
        forEach("Enemies", [this](const QString &place, const QJsonObject &enemy) {
            const QJsonArray drops = objectsIn(enemy, "dropItems");
            for (const QJsonValue &drop : drops) {
                need(place, "Items", number(drop, "itemId"));
            }
            const QJsonArray actions = objectsIn(enemy, "actions");
            for (const QJsonValue &action : actions) {
                need(place, "Skills", number(action, "skillId"));
            }
        });
        forEach("Troops", [this](const QString &place, const QJsonObject &troop) {
            const QJsonArray members = objectsIn(troop, "members");
            for (const QJsonValue &member : members) {
                need(place, "Enemies", number(member, "enemyId"));
            }
            const QJsonArray pages = objectsIn(troop, "pages");
            for (const QJsonValue &page : pages) {
                const QJsonObject conditions = page.toObject().value(QLatin1String("conditions")).toObject();
                if (conditions.contains(QLatin1String("enemyHp"))) {
                    const int index = conditions.value(QLatin1String("enemyIndex")).toInt(-1);
                    needEnemy({place, {}, 0, int(members.size())}, index);
                }
            }
        });
    }

    void checkMaps()
    {
        forEach("MapInfos", [this](const QString &place, const QJsonObject &info) {
            const int parent = number(info, "parentId");
            need(place, "MapInfos", parent, Zero::kAllowed);
            needCell(place, number(info, "id"), 0, 0);
        });
        const QStringList names = sample::mapFiles(m_files);
        for (const QString &name : names) {
            const QJsonObject map = m_files.value(name).object();
            const int id = sample::mapNumber(name);
            need(name, "MapInfos", id);
            need(name, "Tilesets", number(map, "tilesetId"));
            const QJsonArray encounters = objectsIn(map, "encounterList");
            for (const QJsonValue &encounter : encounters) {
                need(name, "Troops", number(encounter, "troopId"));
            }
            const QJsonArray events = objectsIn(map, "events");
            for (int event = 1; event < events.size(); ++event) {
                needCell(QStringLiteral("%1 event %2").arg(name).arg(event), id,
                         number(events.at(event), "x"), number(events.at(event), "y"));
            }
        }
    }

    void checkSystem()
    {
        const QString place = QStringLiteral("System.json");
        const QJsonArray party = system().value(QLatin1String("partyMembers")).toArray();
        for (const QJsonValue &actor : party) {
            need(place, "Actors", actor.toInt());
        }
        needCell(place, number(system(), "startMapId"), number(system(), "startX"),
                 number(system(), "startY"));
    }

    void checkConditions(const EventPage &page)
    {
        const QJsonObject conditions = page.page.value(QLatin1String("conditions")).toObject();
        const int id = number(conditions, "switchId");
        if (id != 0) {
            needSwitch(page.place, id);
        }
        needSelfSwitch(page.place, conditions.value(QLatin1String("selfSwitch")).toString(), Zero::kAllowed);
        needRoute(page.place, page.page.value(QLatin1String("moveRoute")));
    }

    void needSelfSwitch(const QString &place, const QString &letter, Zero none = Zero::kNobody)
    {
        static const QStringList letters = {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C"),
                                            QStringLiteral("D")};
        if (!letters.contains(letter) && !(letter.isEmpty() && none == Zero::kAllowed)) {
            add(place, QStringLiteral("no self switch \"%1\"").arg(letter));
        }
    }

    void needGoods(const QString &place, const QJsonArray &parameters)
    {
        static const char *const lists[] = {"Items", "Weapons", "Armors"};
        const int kind = parameters.at(0).toInt(-1);
        if (kind < 0 || kind > 2) {
            add(place, QStringLiteral("no goods of kind %1").arg(kind));
            return;
        }
        need(place, lists[kind], parameters.at(1).toInt());
    }

    void needEnemy(const CommandList &list, int index)
    {
        if (index >= list.enemies || index < 0) {
            add(list.place, QStringLiteral("no enemy %1 in the troop").arg(index));
        }
    }

    /// @p target of a movement route: -1 is the player, 0 the event itself.
    void needMover(const CommandList &list, int target)
    {
        const QJsonArray events = objectsIn(sample::map(m_files, list.map), "events");
        if (target > 0 && !events.at(target).isObject()) {
            add(list.place, QStringLiteral("no event %1 on the map").arg(target));
        }
    }

    void needDirection(const QString &place, int direction)
    {
        if (direction < 1 || direction > 4) {
            add(place, QStringLiteral("no direction %1").arg(direction));
        }
    }

    void needRoute(const QString &place, const QJsonValue &route)
    {
        const QJsonArray steps = objectsIn(route, "list");
        for (const QJsonValue &step : steps) {
            if (number(step, "code") != 0) {
                needDirection(place, number(step, "code"));
            }
        }
    }

    void needVariables(const QString &place, int firstId, int lastId)
    {
        const int count = system().value(QLatin1String("variables")).toArray().size();
        if (firstId < 1 || lastId >= count) {
            add(place, QStringLiteral("no variables %1 to %2").arg(firstId).arg(lastId));
        }
    }

    void checkCommand(const CommandList &list, int code, const QJsonArray &parameters)
    {
        const auto parameter = [&parameters](int place) {
            return parameters.at(place).toInt();
        };
        switch (code) {
        case 117:
            need(list.place, "CommonEvents", parameter(0));
            break;
        case 121:
            for (int id = parameter(0); id <= parameter(1); ++id) {
                needSwitch(list.place, id);
            }
            break;
        case 122:
            needVariables(list.place, parameter(0), parameter(1));
            break;
        case 123:
            needSelfSwitch(list.place, parameters.at(0).toString());
            break;
        case 126:
            need(list.place, "Items", parameter(0));
            break;
        case 129:
            need(list.place, "Actors", parameter(0));
            break;
        case 201:
            needCell(list.place, parameter(1), parameter(2), parameter(3));
            needDirection(list.place, parameter(4));
            break;
        case 205:
            needMover(list, parameter(0));
            needRoute(list.place, parameters.at(1));
            break;
        case 301:
            need(list.place, "Troops", parameter(1));
            break;
        case 302:
        case 605:
            needGoods(list.place, parameters);
            break;
        case 314:
            need(list.place, "Actors", parameter(1), Zero::kAllowed);
            break;
        case 331:
            needEnemy(list, parameter(0));
            break;
        case 333:
            if (parameter(0) != -1) {
                needEnemy(list, parameter(0));
            }
            need(list.place, "States", parameter(2));
            break;
        default:
            checkPlainCommand(list.place, code);
        }
    }

    void checkPlainCommand(const QString &place, int code)
    {
        static const QSet<int> plain = {0, 101, 102, 105, 230, 241, 401, 402, 404, 405};
        if (!plain.contains(code)) {
            add(place, QStringLiteral("command %1 is not known here").arg(code));
        }
    }

    Files m_files;
    QStringList m_findings;
};

} // namespace

namespace sample {

QStringList danglingReferences(const Files &files)
{
    return ReferenceCheck(files).findings();
}

} // namespace sample
