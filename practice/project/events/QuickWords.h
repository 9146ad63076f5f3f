#pragma once

#include "project/Commands.h"
#include "project/MapBoard.h"

/// What the windows for ready-made events do: "quick.begin KIND" begins the form, the root "quick" of paths,
/// from which "quick.accept" makes an event under the cursor.
class QuickWords
{
public:
    /// All of them outlive the words.
    QuickWords(const StartData *start, const RowSources *sources, const MapBoard *board);

    void addTo(Commands &commands, RowSources &sources);

private:
    void begin(const QString &kind, DataLayer &layer) const;
    void accept(DataLayer &layer) const;

    const StartData *m_start;
    const RowSources *m_sources;
    const MapBoard *m_board;
};
