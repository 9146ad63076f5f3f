#pragma once

#include "project/events/CommandWords.h"
#include "project/events/EventWords.h"
#include "project/events/PlaceWords.h"
#include "project/events/QuickWords.h"
#include "project/events/SearchWords.h"

/// All that windows do with events, and with the lists of commands that they are made of.
class Events
{
public:
    /// What the events are part of; all of it outlives them.
    struct Ground
    {
        const StartData *start;
        DataFiles *files;
        const RowSources *sources;
        MapBoard *board;
        const EditorTools *tools;
    };

    explicit Events(const Ground &ground);

    /// The words outlive the events, too.
    void addTo(Commands &commands, Fields &fields, RowSources &sources);
    void addTo(StateParts &states);

private:
    CommandWords m_commands;
    EventWords m_events;
    PlaceWords m_places;
    QuickWords m_quick;
    SearchWords m_search;
};
