#pragma once

#include "player/game/Command.h"
#include "player/game/Direction.h"
#include "player/game/Problem.h"

#include <QPoint>
#include <QPointF>

namespace player {

/// The hero or an event, as it stands or walks on the map.
struct Character
{
    /// Number of the event; kHero for the hero.
    static constexpr int kHero = -1;

    int id = kHero;
    QString image;
    /// The cell that it stands on, or is walking to.
    QPoint cell;
    /// Where it is drawn, in cells.
    QPointF at;
    int direction = kDown;
    int speed = 0;
    int frequency = 0;
    bool hasFixedDirection = false;
    bool isThrough = false;
    bool stepsInPlace = false;
    bool isTransparent = false;
    /// Is not there at all: no page of the event holds, or it was erased.
    bool isGone = false;
    /// 0 to 255.
    int opacity = 255;

    /// A walk or jump that is on: ticks left of ticks in all, from where it began.
    int ticksLeft = 0;
    int ticks = 0;
    QPointF from;
    bool isJumping = false;
    /// Counts while it walks, for the pictures of its steps.
    int stepTicks = 0;

    /// A movement route that a command gave, ahead of what the character does by itself.
    Route route;
    int routePlace = 0;
    bool hasRoute = false;
    /// The command that gave it.
    Problem routeOf;
    /// Ticks until the next step of a route or of its own movement.
    int pause = 0;
    /// Ticks that something has been in the way of the route.
    int blockedTicks = 0;

    int balloon = 0;
    int balloonTicks = 0;
    int animation = 0;
    /// Ticks that are left of it, and those that have passed.
    int animationTicks = 0;
    int animationPassed = 0;

    [[nodiscard]] bool isMoving() const { return ticksLeft > 0; }
};

} // namespace player
