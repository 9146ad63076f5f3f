#pragma once

#include <QPoint>
#include <QtGlobal>

/// Where the bubble's window stands, where it is going and which way it is turned. Screen pixels.
struct Placement
{
    int newX = 0;
    int newY = 0;
    int lastX = 0;
    int lastY = 0;
    bool upsideDown = false;
    bool mirror = false;
};

/// What one tick makes of a Placement: the window's next top left and the flips as they stand from now on.
struct PlacementStep
{
    int x = 0;
    int y = 0;
    bool upsideDown = false;
    bool mirror = false;
    bool turnedOver = false;   ///< the vertical flip changed on this tick
    bool changedSides = false; ///< the horizontal flip changed on this tick
};

/// Where the buttons go below the hint. Next and Yes share one place.
struct ButtonPlaces
{
    QPoint nextAndYes;
    QPoint no;
};

/// One tick: flips where the window is near enough to its target, then a quarter of the remaining way.
/// @p hostRight is the first column right of the host editor's rectangle, in screen pixels; @p arrowWidth the
/// width of the arrow picture. Coordinates of any size are good: what does not fit an int ends at its limits.
[[nodiscard]] PlacementStep stepPlacement(const Placement &from, qint64 hostRight, int arrowWidth);

/// The buttons' places for the bubble's window at (@p x, @p y) with a hint of @p hintHeight pixels.
[[nodiscard]] ButtonPlaces placeButtons(int x, int y, int hintHeight, int arrowWidth);

/// @p position, or the nearest point that a window can be moved to without its rectangle running over.
[[nodiscard]] QPoint clampToReach(const QPoint &position);

/// @p value, or the limit of int that it lies beyond.
[[nodiscard]] int clampToInt(qint64 value);

/// @p value without its fraction, or the limit of int that it lies beyond. No number reads as 0.
[[nodiscard]] int truncateToInt(double value);
