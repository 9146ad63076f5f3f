#include "player/script/Walker.h"

namespace player::Walker {

namespace {

constexpr int kStepForward = 8;
constexpr int kJumpTicks = 20;
/// Pauses between the steps that characters take by themselves, by frequency.
constexpr int kPauses[] = {60, 150, 20, 0};

int number(const RouteStep &step, int place)
{
    return step.parameters.at(place).toInt();
}

/// A distance on a map.
int cells(const RouteStep &step, int place)
{
    return qBound(-MapData::kLargest, number(step, place), MapData::kLargest);
}

void turn(Character *who, int direction)
{
    if (!who->hasFixedDirection && direction >= kDown && direction <= kUp) {
        who->direction = direction;
    }
}

void begin(Character *who, const QPoint &cell, int ticks)
{
    who->from = who->at;
    who->cell = cell;
    who->ticks = ticks;
    who->ticksLeft = ticks;
}

void move(Character *who)
{
    --who->ticksLeft;
    ++who->stepTicks;
    const double done = 1.0 - double(who->ticksLeft) / who->ticks;
    who->at = who->ticksLeft == 0 ? QPointF(who->cell) : who->from + (QPointF(who->cell) - who->from) * done;
    who->isJumping = who->isJumping && who->ticksLeft > 0;
}

bool jump(Character *who, const QPoint &way, World *world)
{
    const QPoint to = who->cell + way;
    if (!way.isNull() && !world->canEnter(*who, to)) {
        return false;
    }
    turn(who, directionOf(way));
    begin(who, to, kJumpTicks);
    who->isJumping = true;
    return true;
}

int directionToHero(const Character &who, World *world)
{
    return directionOf(world->state().hero.cell - who.cell);
}

/// A step of a movement route that moves; false when something is in the way.
bool walk(Character *who, const RouteStep &order, World *world)
{
    switch (order.code) {
    case 5:
        return step(who, world->state().random.between(kDown, kUp), world);
    case 6:
        return step(who, directionToHero(*who, world), world);
    case 7:
        return step(who, opposite(directionToHero(*who, world)), world);
    case kStepForward:
        return step(who, who->direction, world);
    case 9: {
        // It keeps looking where it looked.
        const int looks = who->direction;
        const bool isFree = step(who, opposite(looks), world);
        who->direction = looks;
        return isFree;
    }
    case 16:
        return jump(who, {cells(order, 0), cells(order, 1)}, world);
    default:
        return step(who, order.code, world);
    }
}

bool isWalk(int code)
{
    return (code >= kDown && code <= 9) || code == 16;
}

void setImage(Character *who, const QString &image, World *world)
{
    who->image = image;
    if (who->id != Character::kHero) {
        return;
    }
    // The hero looks like the leader of the party, also on the next map.
    GameState &state = world->state();
    if (!state.party.isEmpty()) {
        state.actors[state.party.constFirst()].image = image;
    }
}

/// A step of a movement route that does not move.
void act(Character *who, const RouteStep &order, World *world, const Play &play)
{
    switch (order.code) {
    case 10:
    case 11:
    case 12:
    case 13:
        turn(who, order.code - 9);
        break;
    case 14:
        turn(who, directionToHero(*who, world));
        break;
    case 15:
        who->pause = qBound(0, number(order, 0), 36000);
        break;
    case 17:
    case 18:
        if (!order.namesWildSwitch()) {
            world->state().setSwitch(number(order, 0), order.code == 17);
        }
        break;
    case 19:
        who->speed = number(order, 0);
        break;
    case 20:
        who->frequency = number(order, 0);
        break;
    case 21:
    case 22:
        who->isThrough = order.code == 21;
        break;
    case 23:
    case 24:
        who->isTransparent = order.code == 23;
        break;
    case 25:
        setImage(who, order.parameters.at(0).toString(), world);
        break;
    case 26:
        play(Sound::fromJson(order.parameters.at(0)));
        break;
    case 27:
        who->opacity = qBound(0, number(order, 0), 255);
        break;
    default:
        break;
    }
}

/// Takes the steps of a route up to one that takes time. Gives the next place; -1 at the end.
int follow(Character *who, const Route &route, int place, World *world, const Play &play)
{
    for (int steps = 0; steps < route.steps.size(); ++steps) {
        if (place >= route.steps.size()) {
            if (!route.repeats) {
                return -1;
            }
            place = 0;
        }
        const RouteStep &order = route.steps.at(place);
        if (isWalk(order.code)) {
            if (!walk(who, order, world) && !route.isSkippable) {
                ++who->blockedTicks;
                return place;
            }
            who->blockedTicks = 0;
            return place + 1;
        }
        act(who, order, world, play);
        ++place;
        if (who->pause > 0) {
            return place;
        }
    }
    return place;
}

void tickRoute(Character *who, World *world, const Play &play)
{
    // What a step does may give the character another page, but no other route.
    const Route route = who->route;
    who->routePlace = follow(who, route, who->routePlace, world, play);
    const bool isAtEnd = who->routePlace >= route.steps.size() && !route.repeats;
    if (who->routePlace < 0 || isAtEnd) {
        who->hasRoute = false;
        who->blockedTicks = 0;
    }
}

/// What a page has its event do by itself.
void tickOwn(World::Event *event, World *world, const Play &play)
{
    Character *const who = &event->character;
    switch (event->page->moveType) {
    case MoveType::kStays:
        return;
    case MoveType::kWanders:
        step(who, world->state().random.between(kDown, kUp), world);
        break;
    case MoveType::kComes:
        // Now and then it takes another way, or it would be stuck at the first tree.
        step(who,
             world->state().random.oneIn(4) ? world->state().random.between(kDown, kUp)
                                            : directionToHero(*who, world),
             world);
        break;
    case MoveType::kRoute:
        if (event->page->route.steps.isEmpty() || event->ownStep < 0) {
            return;
        }
        event->ownStep = follow(who, event->page->route, event->ownStep, world, play);
        who->blockedTicks = 0;
        break;
    }
    who->pause += kPauses[qBound(0, who->frequency, 3)];
}

void tickBody(Character *who)
{
    who->balloonTicks = qMax(0, who->balloonTicks - 1);
    who->balloon = who->balloonTicks == 0 ? 0 : who->balloon;
    who->animationTicks = qMax(0, who->animationTicks - 1);
    ++who->animationPassed;
    who->animation = who->animationTicks == 0 ? 0 : who->animation;
    if (who->stepsInPlace && !who->isMoving()) {
        ++who->stepTicks;
    }
}

} // namespace

int ticksPerCell(int speed)
{
    constexpr int kTicks[] = {16, 48, 28, 10, 6};
    return kTicks[qBound(0, speed, 4)];
}

bool step(Character *who, int direction, World *world)
{
    if (direction < kDown || direction > kUp) {
        return true;
    }
    turn(who, direction);
    const QPoint to = who->cell + stepTo(direction);
    // Also by one who walks through everything.
    if (who->id != Character::kHero && world->state().hero.cell == to) {
        world->addMeeting(who->id);
    }
    if (!world->canEnter(*who, to)) {
        return false;
    }
    begin(who, to, ticksPerCell(who->speed));
    return true;
}

void tickHero(World *world, const Play &play)
{
    Character *const hero = &world->state().hero;
    tickBody(hero);
    if (hero->isMoving()) {
        move(hero);
    } else if (hero->pause > 0) {
        --hero->pause;
    } else if (hero->hasRoute) {
        tickRoute(hero, world, play);
    }
}

void tickEvents(World *world, const Play &play)
{
    for (World::Event &event : world->events()) {
        Character *const who = &event.character;
        tickBody(who);
        if (event.page == nullptr) {
            who->ticksLeft = 0;
            who->hasRoute = false;
        } else if (who->isMoving()) {
            move(who);
        } else if (who->pause > 0) {
            --who->pause;
        } else if (who->hasRoute) {
            tickRoute(who, world, play);
        } else if (!event.isBusy) {
            tickOwn(&event, world, play);
        }
    }
}

} // namespace player::Walker
