#pragma once

#include "project/Commands.h"
#include "project/Fields.h"
#include "project/MapBoard.h"
#include "project/StartData.h"
#include "project/StateParts.h"

class MapEvents;

/// What windows do with the events of the map on show: the one under the cursor is copied, pasted, deleted,
/// moved, and edited with its pages.
class EventWords
{
public:
    /// All of them outlive the words.
    EventWords(const StartData *start, const RowSources *sources, MapBoard *board, const EditorTools *tools);

    void addTo(Commands &commands, Fields &fields, RowSources &sources);
    /// What was copied.
    void addTo(StateParts &states);

private:
    using PageChange = std::function<void(QJsonArray *pages, int *current)>;

    void addPages(Commands &commands, RowSources &sources);
    [[nodiscard]] QString mapFile(const DataLayer &layer) const;
    [[nodiscard]] MapEvents eventsOf(const DataLayer &layer) const;
    [[nodiscard]] int underCursor(const DataLayer &layer) const;

    void edit(DataLayer &layer) const;
    void paste(DataLayer &layer) const;
    void remove(DataLayer &layer) const;
    void changePages(DataLayer &layer, const PageChange &change) const;
    [[nodiscard]] std::optional<DataPlace> pagesPlace(const DataLayer &layer) const;
    [[nodiscard]] QJsonArray pages(const DataLayer &layer) const;

    const StartData *m_start;
    const RowSources *m_sources;
    MapBoard *m_board;
    const EditorTools *m_tools;
    /// What was copied last; empty for nothing.
    QJsonObject m_copiedEvent;
    QJsonObject m_copiedPage;
};
