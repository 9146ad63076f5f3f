#pragma once

#include "project/Commands.h"
#include "project/DataFiles.h"
#include "project/Fields.h"
#include "project/StartData.h"

struct GameMap;

/// The maps of the project as a tree: made, added, changed in their size and deleted. In a draft this is what
/// the map's properties do before they are accepted.
class Maps
{
public:
    /// @p start and @p sources outlive the maps; the selected map is the current row of the source "maps".
    Maps(const StartData *start, const RowSources *sources);

    /// Adds the commands and lists that have to do with maps.
    void addTo(Commands &commands, Fields &fields, RowSources &sources);

private:
    [[nodiscard]] int selected(const DataLayer &layer) const;
    void add(const GameMap &map, DataLayer &layer) const;
    void remove(DataLayer &layer) const;
    void accept(DataLayer &layer) const;

    const StartData *m_start;
    const RowSources *m_sources;
};
