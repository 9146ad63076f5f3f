#pragma once

#include "project/Commands.h"
#include "project/DataFiles.h"
#include "project/RowSources.h"
#include "project/StartData.h"

/// A game to be played as the project stands, with all that was not saved.
struct PlayRequest
{
    /// All data files by name.
    DataRoots files;
    /// Full path of the project's folder.
    QString folder;
    /// Number of the troop that a battle test is fought against; 0 for the game from its beginning.
    int troop = 0;
    /// The tiles and tile sets of all projects; it outlives the project.
    const StartData *start = nullptr;
};

/// The commands with which windows let the project be played: "play.project", and "play.battle" for the
/// selected troop against the party of the database. Both are grey while no project is open, and where nobody
/// plays.
class PlayWords
{
public:
    using Play = std::function<void(const PlayRequest &)>;

    /// All of them outlive the words.
    PlayWords(const StartData *start, const DataFiles *files, const RowSources *sources);

    void addTo(Commands &commands);

    /// Hands in who plays.
    void setPlayer(const Play &play) { m_play = play; }

private:
    void play(const DataLayer &layer, int troop) const;
    [[nodiscard]] int troop(const DataLayer &layer) const;

    const StartData *m_start;
    const DataFiles *m_files;
    const RowSources *m_sources;
    Play m_play;
};
