#include "SampleGame.h"

#include "SampleEvents.h"

namespace {

using sample::number;
using sample::objectsIn;
using sample::Place;

constexpr int kByAsking = 0;
constexpr int kByTouch = 1;
constexpr int kByItself = 3;
constexpr int kTransfer = 201;
constexpr int kBranch = 402;
constexpr int kEndOfChoices = 404;
constexpr int kPlayer = -1;
constexpr int kEnding = 3;

/// The place that a page's first transfer leads to, on map 0 if it has none.
Place target(const QJsonObject &page)
{
    const QJsonArray list = objectsIn(page, "list");
    for (const QJsonValue &command : list) {
        if (number(command, "code") == kTransfer) {
            const QJsonArray parameters = objectsIn(command, "parameters");
            return {parameters.at(1).toInt(), parameters.at(2).toInt(), parameters.at(3).toInt()};
        }
    }
    return {};
}

} // namespace

namespace sample {

Game::Game(const Files &files)
    : m_files(files)
    , m_ground(files)
{
    const QJsonObject system = files.value(QStringLiteral("System.json")).object();
    m_player = {number(system, "startMapId"), number(system, "startX"), number(system, "startY")};
    const QJsonArray party = objectsIn(system, "partyMembers");
    for (const QJsonValue &actor : party) {
        m_party.insert(actor.toInt());
    }
}

void Game::play()
{
    while (m_errors.isEmpty() && (beginsByItself() || talks() || goes())) {
    }
}

/// An event's page is the last one whose conditions hold.
QVector<Game::Scene> Game::scenes(int map) const
{
    QVector<Scene> scenes;
    const QJsonArray events = objectsIn(sample::map(m_files, map), "events");
    for (const QJsonValue &event : events) {
        const QString name = QStringLiteral("%1 event %2").arg(mapFile(map)).arg(number(event, "id"));
        const Place place = {map, number(event, "x"), number(event, "y")};
        const QJsonArray pages = objectsIn(event, "pages");
        for (int i = pages.size() - 1; i >= 0; --i) {
            if (isPage(pages.at(i).toObject(), name)) {
                scenes.append({name, place, pages.at(i).toObject(), i + 1});
                break;
            }
        }
    }
    return scenes;
}

QVector<Game::Scene> Game::scenes(int map, int trigger) const
{
    QVector<Scene> found;
    const QVector<Scene> all = scenes(map);
    for (const Scene &scene : all) {
        if (number(scene.page, "trigger") == trigger) {
            found.append(scene);
        }
    }
    return found;
}

bool Game::isPage(const QJsonObject &page, const QString &event) const
{
    const QJsonObject conditions = page.value(QLatin1String("conditions")).toObject();
    const int id = number(conditions, "switchId");
    const QString letter = conditions.value(QLatin1String("selfSwitch")).toString();
    return (id == 0 || m_switches.contains(id)) &&
           (letter.isEmpty() || m_selfSwitches.contains(event + QLatin1Char(' ') + letter));
}

bool Game::canStand(const Place &place) const
{
    const QVector<Scene> figures = scenes(place.map, kByAsking);
    for (const Scene &scene : figures) {
        if (scene.place == place && !scene.page.value(QLatin1String("image")).toString().isEmpty()) {
            return false;
        }
    }
    return m_ground.canWalk(place);
}

bool Game::beginsByItself()
{
    const QVector<Scene> beginning = scenes(m_player.map, kByItself);
    if (beginning.isEmpty()) {
        return false;
    }
    const auto before = state();
    run(beginning.first());
    if (state() == before) {
        m_errors.append(beginning.first().event + QStringLiteral(": begins for ever"));
    }
    return true;
}

Game::Chances Game::chances() const
{
    Chances chances;
    QMap<int, QVector<Scene>> all;
    std::set<Place> seen = {m_player};
    QVector<Place> open = {m_player};
    while (!open.isEmpty()) {
        const Place place = open.takeFirst();
        if (!all.contains(place.map)) {
            all.insert(place.map, scenes(place.map));
        }
        const QVector<Place> around = besides(place);
        for (const Place &next : around) {
            bool isFree = m_ground.canWalk(next);
            Place to;
            for (const Scene &scene : qAsConst(all[place.map])) {
                if (!(scene.place == next)) {
                    continue;
                }
                const int trigger = number(scene.page, "trigger");
                if (trigger == kByAsking && !scene.page.value(QLatin1String("image")).toString().isEmpty()) {
                    isFree = false;
                }
                if (trigger == kByAsking && objectsIn(scene.page, "list").size() > 1) {
                    chances.talks.append(scene);
                    chances.stands.append(place);
                }
                to = trigger == kByTouch ? target(scene.page) : to;
            }
            if (!isFree || !seen.insert(next).second) {
                continue;
            }
            if (to.map == 0) {
                open.append(next);
            } else if (canStand(to) && seen.insert(to).second) {
                open.append(to);
                if (!scenes(to.map, kByItself).isEmpty()) {
                    chances.entries.append(to);
                }
            }
        }
    }
    return chances;
}

bool Game::talks()
{
    const Chances now = chances();
    for (int i = 0; i < now.talks.size(); ++i) {
        const Scene &scene = now.talks.at(i);
        const QString name = QStringLiteral("%1 page %2").arg(scene.event).arg(scene.pageNumber);
        if (!m_done.contains(name)) {
            m_done.insert(name);
            m_player = now.stands.at(i);
            run(scene);
            return true;
        }
    }
    return false;
}

bool Game::goes()
{
    const QVector<Place> entries = chances().entries;
    if (entries.isEmpty()) {
        return false;
    }
    m_player = entries.first();
    return true;
}

/// Of choices, the first is taken.
void Game::run(const Scene &scene)
{
    int skipped = -1;
    const QJsonArray list = objectsIn(scene.page, "list");
    for (const QJsonValue &command : list) {
        const int code = number(command, "code");
        const int indent = number(command, "indent");
        if (skipped >= 0) {
            skipped = code == kEndOfChoices && indent == skipped ? -1 : skipped;
        } else if (code == kBranch && objectsIn(command, "parameters").at(0).toInt() != 0) {
            skipped = indent;
        } else {
            runCommand(scene, code, objectsIn(command, "parameters"));
        }
    }
}

void Game::runCommon(int id)
{
    const QJsonObject event = entries(m_files, QStringLiteral("CommonEvents.json")).at(id).toObject();
    m_hasEnded = m_hasEnded || id == kEnding;
    run({QStringLiteral("CommonEvents.json entry %1").arg(id), m_player, event, 1});
}

void Game::runCommand(const Scene &scene, int code, const QJsonArray &parameters)
{
    switch (code) {
    case 117:
        runCommon(parameters.at(0).toInt());
        break;
    case 121:
        for (int id = parameters.at(0).toInt(); id <= parameters.at(1).toInt(); ++id) {
            if (parameters.at(2).toInt() == 0) {
                m_switches.insert(id);
            } else {
                m_switches.remove(id);
            }
        }
        break;
    case 123:
        m_selfSwitches.insert(scene.event + QLatin1Char(' ') + parameters.at(0).toString());
        break;
    case 126:
        give(parameters.at(0).toInt(), parameters.at(1).toInt() != 0, parameters.at(3).toInt());
        break;
    case 129:
        m_party.insert(parameters.at(0).toInt());
        break;
    case 205:
        walk(scene, parameters);
        break;
    case 301:
        m_troops.insert(parameters.at(1).toInt());
        break;
    default:
        break;
    }
}

void Game::give(int item, bool away, int count)
{
    m_items[item] += away ? -count : count;
    if (m_items.value(item) < 0) {
        m_errors.append(QStringLiteral("item %1 is given and not there").arg(item));
    }
}

void Game::walk(const Scene &scene, const QJsonArray &parameters)
{
    const int mover = parameters.at(0).toInt();
    const QJsonArray events = objectsIn(sample::map(m_files, scene.place.map), "events");
    Place place = mover == kPlayer
                      ? m_player
                      : Place{scene.place.map, number(events.at(mover), "x"), number(events.at(mover), "y")};
    const QJsonArray steps = objectsIn(parameters.at(1), "list");
    for (const QJsonValue &step : steps) {
        const Place next = stepped(place, number(step, "code"));
        if (!(next == place) && (!canStand(next) || (mover != kPlayer && next == m_player))) {
            m_errors.append(scene.event + QStringLiteral(": walks into something"));
            return;
        }
        place = next;
    }
    if (mover == kPlayer) {
        m_player = place;
    }
}

} // namespace sample
