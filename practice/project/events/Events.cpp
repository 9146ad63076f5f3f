#include "project/events/Events.h"

Events::Events(const Ground &ground)
    : m_commands(ground.start, ground.sources)
    , m_events(ground.start, ground.sources, ground.board, ground.tools)
    , m_places(ground.start, ground.sources)
    , m_quick(ground.start, ground.sources, ground.board)
    , m_search(ground.files, ground.sources, ground.board)
{
}

void Events::addTo(Commands &commands, Fields &fields, RowSources &sources)
{
    m_commands.addTo(commands, fields, sources);
    m_events.addTo(commands, fields, sources);
    m_places.addTo(commands, fields, sources);
    m_quick.addTo(commands, sources);
    m_search.addTo(commands, sources);
}

void Events::addTo(StateParts &states)
{
    m_commands.addTo(states);
    m_events.addTo(states);
}
