#include "player/script/World.h"

#include <utility>

namespace player {

World::World(const GameData *data, GameState *state)
    : m_data(data)
    , m_state(state)
{
}

void World::enter()
{
    m_map = m_data->maps.find(m_state->map);
    if (m_map != nullptr && m_map->size.isEmpty()) {
        m_map = nullptr;
    }
    m_events.clear();
    m_meetings.clear();
    if (m_map == nullptr) {
        return;
    }
    m_events.reserve(m_map->events.size());
    for (const MapEvent &entry : m_map->events) {
        Event event;
        event.entry = &entry;
        event.character.id = entry.id;
        event.character.cell = entry.cell;
        event.character.at = entry.cell;
        event.character.isGone = true;
        m_events.append(event);
    }
    refresh();
}

bool World::holds(const Event &event, const PageConditions &conditions) const
{
    return (conditions.switchId == 0 || m_state->isOn(conditions.switchId)) &&
           (conditions.variableId == 0 ||
            m_state->variable(conditions.variableId) >= conditions.variableValue) &&
           (conditions.selfSwitch.isEmpty() ||
            m_state->isSelfSwitchOn(m_map->id, event.entry->id, conditions.selfSwitch));
}

void World::refresh()
{
    for (Event &event : m_events) {
        int number = event.isErased ? 0 : int(event.entry->pages.size());
        while (number > 0 && !holds(event, event.entry->pages.at(number - 1).conditions)) {
            --number;
        }
        if (number != event.pageNumber) {
            takePage(&event, number);
        }
    }
}

void World::takePage(Event *event, int number)
{
    event->pageNumber = number;
    event->page = number == 0 ? nullptr : &event->entry->pages.at(number - 1);
    event->ownStep = 0;
    Character &who = event->character;
    who.isGone = event->page == nullptr;
    if (event->page == nullptr) {
        return;
    }
    who.image = event->page->image;
    who.speed = event->page->moveSpeed;
    who.frequency = event->page->moveFrequency;
    who.hasFixedDirection = event->page->hasFixedDirection;
    who.isThrough = event->page->isThrough;
    who.stepsInPlace = event->page->stepsInPlace;
}

World::Event *World::event(int id)
{
    for (Event &event : m_events) {
        if (event.entry->id == id) {
            return &event;
        }
    }
    return nullptr;
}

Character *World::character(int id)
{
    if (id == Character::kHero) {
        return &m_state->hero;
    }
    Event *const found = event(id);
    return found != nullptr && !found->isErased ? &found->character : nullptr;
}

void World::erase(int id)
{
    if (Event *const found = event(id)) {
        found->isErased = true;
        takePage(found, 0);
    }
}

bool World::isObstacle(const Event &event)
{
    return event.page != nullptr && !event.character.isThrough && !event.character.image.isEmpty() &&
           event.page->trigger != Trigger::kTouched;
}

bool World::canEnter(const Character &who, const QPoint &cell) const
{
    if (m_map == nullptr || !m_map->contains(cell)) {
        return false;
    }
    if (who.isThrough) {
        return true;
    }
    if (!m_map->isFloor(cell)) {
        return false;
    }
    if (who.id != Character::kHero && !m_state->hero.isThrough && m_state->hero.cell == cell) {
        return false;
    }
    for (const Event &event : m_events) {
        if (event.entry->id != who.id && event.character.cell == cell && isObstacle(event)) {
            return false;
        }
    }
    return true;
}

QVector<int> World::takeMeetings()
{
    return std::exchange(m_meetings, {});
}

} // namespace player
