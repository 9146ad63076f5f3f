#pragma once

#include "player/game/GameState.h"

#include <QCoreApplication>
#include <QDateTime>

#include <optional>

namespace player {

struct GameData;

/// A place for a saved game, and what is there.
struct SaveSlot
{
    bool isEmpty = true;
    /// When its file was written.
    QDateTime when;
    /// Nothing when it is empty or cannot be read.
    std::optional<GameState> state;
    /// Why it cannot be read, for the person.
    QString error;
    /// It is of another version of the project.
    QString warning;
};

/// The saved games of a project, each a file in a folder of its own: data stay as they are. A file is written
/// whole or not at all.
class SaveFiles
{
    Q_DECLARE_TR_FUNCTIONS(SaveFiles)

public:
    static constexpr int kSlots = 10;

    /// @p folder may be empty: then nothing can be saved. It need not exist yet.
    explicit SaveFiles(const QString &folder)
        : m_folder(folder)
    {
    }

    /// Whether there is a place for saved games.
    [[nodiscard]] bool canSave() const { return !m_folder.isEmpty(); }
    /// Whether a saved game is there, be it readable or not.
    [[nodiscard]] bool hasAny() const;
    /// @p slot is 0 to kSlots - 1.
    [[nodiscard]] SaveSlot read(int slot, const GameData &data) const;
    /// False, with a text for the person, when the file cannot be written; what was there stays.
    [[nodiscard]] bool write(int slot, const GameState &state, const GameData &data, QString *error) const;
    [[nodiscard]] QString path(int slot) const;

private:
    QString m_folder;
};

} // namespace player
