#include "player/scene/MapEvents.h"

#include "player/game/GameData.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace player {

namespace {

/// An event that began by itself so often in a row, and nothing else could happen.
constexpr int kTooOften = 20;
/// Commands that all events do together in a tick, however many they are, but for the least of each.
constexpr int kBudgetOfAll = 20000;
constexpr int kLeastBudget = 2;

/// A list that has nothing but its end does not begin at all.
bool hasCommands(const CommandList &list)
{
    return std::any_of(list.begin(), list.end(), [](const Command &command) { return command.code != 0; });
}

} // namespace

MapEvents::MapEvents(const GameData *data, World *world, Stage *stage, const Interpreter::Tell &tell)
    : m_data(data)
    , m_world(world)
    , m_stage(stage)
    , m_tell(tell)
    , m_main(data, &world->state(), stage, tell)
{
}

void MapEvents::leaveMap()
{
    m_parallel.clear();
    m_parallelPages.clear();
    m_mainEvent = 0;
}

ListPlace MapEvents::placeOf(const World::Event &event) const
{
    const int map = m_world->state().map;
    return {QStringLiteral("data/Map%1.json").arg(map, 3, 10, QLatin1Char('0')), map, event.entry->id,
            event.pageNumber};
}

void MapEvents::start(World::Event *event)
{
    if (m_main.isRunning() || event->page == nullptr || !hasCommands(event->page->list)) {
        return;
    }
    m_mainEvent = event->entry->id;
    event->isBusy = true;
    Character &who = event->character;
    if (event->page->trigger == Trigger::kAsked && !who.hasFixedDirection) {
        const int looks = directionOf(m_world->state().hero.cell - who.cell);
        who.direction = looks != kNowhere ? looks : who.direction;
    }
    m_main.start(event->page->list, placeOf(*event));
}

void MapEvents::startCommon(const CommonEventEntry &event)
{
    if (!m_main.isRunning() && hasCommands(event.list)) {
        m_mainEvent = 0;
        m_main.start(event.list, {QStringLiteral("data/CommonEvents.json"), 0, event.id, 0});
    }
}

void MapEvents::release()
{
    if (World::Event *const event = m_world->event(m_mainEvent)) {
        event->isBusy = false;
    }
    m_mainEvent = 0;
}

void MapEvents::tick()
{
    beginBeside();
    std::vector<Interpreter *> all{&m_main};
    for (const auto &entry : m_parallel) {
        all.push_back(entry.second.get());
    }
    for (const auto &entry : m_common) {
        all.push_back(entry.second.get());
    }
    // Whoever has talked takes the answer before the next one asks.
    std::stable_partition(all.begin(), all.end(),
                          [](const Interpreter *interpreter) { return interpreter->ownsStage(); });
    const int budget = qBound(kLeastBudget, kBudgetOfAll / int(all.size()), Interpreter::kBudget);
    for (Interpreter *const interpreter : all) {
        interpreter->tick(budget);
        if (m_stage->isAway() || m_stage->isTransferring()) {
            break;
        }
    }
    if (!m_main.isRunning()) {
        release();
        m_world->refresh();
        beginByThemselves();
    }
}

void MapEvents::countAutorun(const ListPlace &place)
{
    const bool isSame = place.file == m_lastAutorun.file && place.event == m_lastAutorun.event &&
                        place.page == m_lastAutorun.page;
    m_autoruns = isSame ? m_autoruns + 1 : 1;
    m_lastAutorun = place;
    if (m_autoruns == kTooOften) {
        Problem problem;
        problem.file = place.file;
        problem.map = place.map;
        problem.event = place.event;
        problem.page = place.page;
        problem.text = QCoreApplication::translate(
            "TestPlay",
            "This begins by itself again and again, so the player can do nothing. Let it turn on a "
            "switch that another page waits for, or erase the event.");
        m_tell(problem);
    }
}

void MapEvents::beginByThemselves()
{
    if (m_stage->isAway() || m_stage->isTransferring()) {
        return;
    }
    for (World::Event &event : m_world->events()) {
        if (event.page != nullptr && event.page->trigger == Trigger::kByItself &&
            hasCommands(event.page->list)) {
            countAutorun(placeOf(event));
            start(&event);
            return;
        }
    }
    const QList<int> ids = m_data->commonEvents.ids();
    for (const int id : ids) {
        const CommonEventEntry *const event = m_data->commonEvents.find(id);
        if (event->trigger == CommonTrigger::kByItself && hasCommands(event->list) &&
            (event->switchId == 0 || m_world->state().isOn(event->switchId))) {
            countAutorun({QStringLiteral("data/CommonEvents.json"), 0, id, 0});
            startCommon(*event);
            return;
        }
    }
}

/// What has ended begins anew; what does not hold any more is over.
void MapEvents::beginBeside()
{
    const World &world = *m_world;
    for (const World::Event &event : world.events()) {
        const int id = event.entry->id;
        const bool runs = event.page != nullptr && event.page->trigger == Trigger::kParallel &&
                          hasCommands(event.page->list);
        if (!runs || m_parallelPages[id] != event.pageNumber) {
            m_parallel.erase(id);
            m_parallelPages[id] = event.pageNumber;
        }
        if (!runs) {
            continue;
        }
        std::unique_ptr<Interpreter> &interpreter = m_parallel[id];
        if (interpreter == nullptr) {
            interpreter = std::make_unique<Interpreter>(m_data, &m_world->state(), m_stage, m_tell);
        }
        if (!interpreter->isRunning()) {
            interpreter->start(event.page->list, placeOf(event));
        }
    }
    const QList<int> ids = m_data->commonEvents.ids();
    for (const int id : ids) {
        const CommonEventEntry *const event = m_data->commonEvents.find(id);
        const bool runs = event->trigger == CommonTrigger::kParallel && hasCommands(event->list) &&
                          (event->switchId == 0 || m_world->state().isOn(event->switchId));
        if (!runs) {
            m_common.erase(id);
            continue;
        }
        std::unique_ptr<Interpreter> &interpreter = m_common[id];
        if (interpreter == nullptr) {
            interpreter = std::make_unique<Interpreter>(m_data, &m_world->state(), m_stage, m_tell);
        }
        if (!interpreter->isRunning()) {
            interpreter->start(event->list, {QStringLiteral("data/CommonEvents.json"), 0, id, 0});
        }
    }
}

} // namespace player
