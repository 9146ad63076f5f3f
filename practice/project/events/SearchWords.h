#pragma once

#include "project/Commands.h"
#include "project/EditorTools.h"
#include "project/MapBoard.h"
#include "project/events/EventSearch.h"

/// What the window does that looks for events: the root "search" of paths is what is looked for, the list
/// "found" what there is of it.
class SearchWords
{
public:
    /// All of them outlive the words.
    SearchWords(DataFiles *files, const RowSources *sources, MapBoard *board);

    void addTo(Commands &commands, RowSources &sources);

private:
    [[nodiscard]] QVector<EventSearch::Found> found(const DataLayer &layer) const;
    void show(const Commands &commands, const DataLayer &layer) const;

    DataFiles *m_files;
    const RowSources *m_sources;
    MapBoard *m_board;
};
