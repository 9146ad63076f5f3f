#pragma once

#include <QString>

/// A place among the event commands of a project, or in its database. Numbers that are 0 are not known.
struct EventPlace
{
    enum class In { kMap, kCommonEvents, kTroops, kDatabase };

    In in = In::kMap;
    /// Number of the map.
    int map = 0;
    /// Number of the event on it, of the common event, of the troop or of the database's entry.
    int event = 0;
    /// Of the event or troop, from 1.
    int page = 0;
    /// Row of the list of commands, from 1.
    int line = 0;
    /// The list of the database, such as "data/Skills".
    QString list = {};
};
