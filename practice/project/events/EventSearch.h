#pragma once

#include "project/DataLayer.h"

#include <QPoint>
#include <QVector>

/// Looks through the events of all maps.
namespace EventSearch {

enum class By { kName, kSwitch, kVariable };

/// What is looked for.
struct Wanted
{
    By by = By::kName;
    /// A part of the name, whatever its case.
    QString name;
    /// Of the switch or variable.
    int number = 0;
};

/// An event that was found.
struct Found
{
    /// Numbers of the map and of the event on it.
    int map = 0;
    int event = 0;
    /// Where it stands: column and row, from 0.
    QPoint cell;
    QString name;
};

/// The events of @p maps, by number, that are called so, or that ask for or change the switch or variable. In
/// the order of the maps and of the events.
[[nodiscard]] QVector<Found> find(const Wanted &wanted, const QVector<int> &maps, const DataLayer &layer);

} // namespace EventSearch
