#pragma once

#include "SampleGround.h"

#include <QSet>
#include <QStringList>
#include <QVector>

#include <map>
#include <set>

namespace sample {

/// Where the player can walk in a step of the sample project. A cell can be walked on when its uppermost tile
/// can, and no figure stands there. Figures are taken as they stand at the beginning, and pages as if each
/// had come to its turn, so a gate that opens at some time is a way.
class Ways
{
public:
    explicit Ways(const Files &files);

    /// The maps on which the player never stands.
    QSet<int> unreachedMaps() const;

    /// What is wrong with the ways of the maps that are reached, a line each: a place where the player would
    /// stand in a wall, events that nobody gets to, exits of which a cell leads nowhere, transfers that
    /// nobody comes back from.
    QStringList findings() const;

private:
    struct Transfer
    {
        QString event;
        Place to;
    };

    struct Figure
    {
        QString event;
        Place place;
        /// It begins when the player steps on its cell, and otherwise when the player stands beside it and
        /// asks.
        bool byTouch = false;
    };

    void readMap(const Files &files, int map);
    void readEvent(int map, const QJsonObject &event);
    bool canStand(const Place &place) const;
    bool isReached(const Figure &figure) const;
    std::set<Place> reachedFrom(const Place &start) const;
    std::set<Place> leadingTo(const Place &end) const;
    QStringList targetFindings() const;
    QStringList exitFindings(const Place &from, const Transfer &transfer) const;

    Ground m_ground;
    Place m_start;
    QSet<int> m_maps;
    std::set<Place> m_blocked;
    QVector<Figure> m_figures;
    /// By the cell that the player steps on.
    std::map<Place, Transfer> m_transfers;
    std::set<Place> m_reached;
};

} // namespace sample
