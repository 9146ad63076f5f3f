#pragma once

#include "player/game/Command.h"

#include <QPoint>
#include <QSize>
#include <QString>
#include <QVector>

namespace player {

enum class Trigger { kAsked = 0, kTouched = 1, kMeetsPlayer = 2, kByItself = 3, kParallel = 4 };

enum class MoveType { kStays = 0, kWanders = 1, kComes = 2, kRoute = 3 };

struct PageConditions
{
    /// 0 for none.
    int switchId = 0;
    /// 0 for none.
    int variableId = 0;
    /// The variable has to be this at least.
    int variableValue = 0;
    /// A to D, empty for none.
    QString selfSwitch;
};

struct EventPage
{
    PageConditions conditions;
    QString image;
    MoveType moveType = MoveType::kStays;
    int moveSpeed = 0;
    int moveFrequency = 0;
    bool hasFixedDirection = false;
    bool isThrough = false;
    bool stepsInPlace = false;
    Trigger trigger = Trigger::kAsked;
    Route route;
    CommandList list;
};

struct MapEvent
{
    int id = 0;
    QString name;
    QPoint cell;
    QVector<EventPage> pages;
};

struct Encounter
{
    int troop = 0;
    int weight = 0;
};

/// One map. Cells are (column, row) from the top left.
struct MapData
{
    static constexpr int kLayers = 3;
    /// Cells of a side at most.
    static constexpr int kLargest = 256;

    int id = 0;
    QString name;
    /// What the player reads on arrival; empty for the map's name.
    QString displayName;
    bool showsName = true;
    /// Number of the tile set's entry.
    int tileSet = 1;
    QSize size;
    /// Row by row, layer behind layer; 0 is an empty cell.
    QVector<int> tiles;
    /// Whether one can stand on a cell, row by row.
    QVector<bool> floor;
    /// Whether one can talk across a cell, row by row: over a fence, as over the counter of a shop.
    QVector<bool> counter;
    Sound music;
    QString backdrop;
    QVector<Encounter> encounters;
    /// In the order of their numbers, without those that are not there.
    QVector<MapEvent> events;

    [[nodiscard]] bool contains(const QPoint &cell) const;
    /// 0 outside.
    [[nodiscard]] int tile(int layer, const QPoint &cell) const;
    /// False outside.
    [[nodiscard]] bool isFloor(const QPoint &cell) const;
    [[nodiscard]] bool isCounter(const QPoint &cell) const;
    /// nullptr when there is none.
    [[nodiscard]] const MapEvent *event(int number) const;
};

} // namespace player
