#include "player/scene/MapHero.h"

#include "player/game/Ways.h"
#include "player/script/Walker.h"

namespace player {

namespace {

int heldDirection(const Input &input)
{
    constexpr std::pair<GameKey, int> kKeys[] = {
        {GameKey::kDown, kDown}, {GameKey::kLeft, kLeft}, {GameKey::kRight, kRight}, {GameKey::kUp, kUp}};
    for (const auto &[key, direction] : kKeys) {
        if (input.isHeld(key) || input.isPressed(key)) {
            return direction;
        }
    }
    return kNowhere;
}

bool isTouch(const World::Event &event)
{
    return event.page != nullptr &&
           (event.page->trigger == Trigger::kTouched || event.page->trigger == Trigger::kMeetsPlayer);
}

bool canBeAsked(const World::Event &event)
{
    return event.page != nullptr && event.page->trigger != Trigger::kByItself &&
           event.page->trigger != Trigger::kParallel;
}

} // namespace

MapHero::MapHero(World *world)
    : m_world(world)
{
}

World::Event *MapHero::tick(const Input &input)
{
    if (input.cell) {
        beginWay(*input.cell);
    }
    if (input.isPressed(GameKey::kAct)) {
        forgetWay();
        return ask();
    }
    if (const int direction = heldDirection(input); direction != kNowhere) {
        forgetWay();
        return walk(direction);
    }
    return m_goal ? followWay() : nullptr;
}

void MapHero::forgetWay()
{
    m_goal.reset();
    m_followed = 0;
}

void MapHero::beginWay(const QPoint &cell)
{
    forgetWay();
    m_goal = cell;
    for (const World::Event &event : m_world->events()) {
        // Between two cells it may be clicked on either.
        if (canBeAsked(event) && !event.character.image.isEmpty() &&
            (event.character.cell == cell || event.character.at.toPoint() == cell)) {
            m_followed = event.character.id;
        }
    }
}

World::Event *MapHero::walk(int direction)
{
    Character *const hero = &m_world->state().hero;
    if (Walker::step(hero, direction, m_world)) {
        return nullptr;
    }
    // What is in the way is touched.
    return touchedAt(hero->cell + stepTo(direction));
}

World::Event *MapHero::touchedAt(const QPoint &cell) const
{
    for (World::Event &event : m_world->events()) {
        if (event.character.cell == cell && isTouch(event)) {
            return &event;
        }
    }
    return nullptr;
}

World::Event *MapHero::arrive()
{
    return touchedAt(m_world->state().hero.cell);
}

World::Event *MapHero::ask()
{
    const Character &hero = m_world->state().hero;
    const QPoint before = hero.cell + stepTo(hero.direction);
    if (World::Event *const event = askedAt(before)) {
        return event;
    }
    const MapData *const map = m_world->map();
    if (map != nullptr && map->isCounter(before)) {
        if (World::Event *const event = askedAt(before + stepTo(hero.direction))) {
            return event;
        }
    }
    for (World::Event &event : m_world->events()) {
        if (canBeAsked(event) && event.character.cell == hero.cell &&
            event.page->trigger == Trigger::kAsked) {
            return &event;
        }
    }
    return nullptr;
}

World::Event *MapHero::askedAt(const QPoint &cell) const
{
    for (World::Event &event : m_world->events()) {
        // A thing without a picture can be stood on; a touch begins where it is in the way.
        if (event.character.cell == cell && canBeAsked(event) &&
            (event.page->trigger == Trigger::kAsked || World::isObstacle(event))) {
            return &event;
        }
    }
    return nullptr;
}

World::Event *MapHero::followWay()
{
    Character *const hero = &m_world->state().hero;
    const MapData *const map = m_world->map();
    if (const World::Event *const followed = m_world->event(m_followed);
        followed != nullptr && followed->page != nullptr) {
        m_goal = followed->character.cell;
    }
    const QPoint goal = *m_goal;
    if (map == nullptr || goal == hero->cell) {
        forgetWay();
        return map == nullptr ? nullptr : ask();
    }
    const QVector<QPoint> way = Ways::find(map->size, hero->cell, goal, [this, hero](const QPoint &cell) {
        // Not through what begins by a touch, unless one is sent there.
        return m_world->canEnter(*hero, cell) && touchedAt(cell) == nullptr;
    });
    if (way.isEmpty()) {
        forgetWay();
        return nullptr;
    }
    const int direction = directionOf(way.constFirst() - hero->cell);
    if (way.size() == 1 && !m_world->canEnter(*hero, goal)) {
        // What stands there is asked, or touched.
        forgetWay();
        Walker::step(hero, direction, m_world);
        World::Event *const touched = touchedAt(goal);
        return touched != nullptr ? touched : ask();
    }
    return walk(direction);
}

} // namespace player
