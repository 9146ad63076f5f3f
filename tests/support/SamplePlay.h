#pragma once

#include "SampleFiles.h"
#include "player/game/GameReader.h"
#include "player/run/ScriptRunner.h"
#include "player/scene/NewGame.h"

#include <memory>

/// The sample project as a game that is played by a script.
namespace sample {

/// The names of the drawings of the editor's tiles, the first one being tile 1.
[[nodiscard]] QStringList tileNames();

/// Data files as a game reads them. With a locale, the texts stand in them; otherwise their numbers do.
[[nodiscard]] player::GameData::Files gameFiles(const Files &files, const QString &locale = {});

/// A game that is played line by line.
class Play
{
public:
    explicit Play(const player::GameData::Files &files, const player::GameSettings &settings = {});

    /// Plays the lines of a script; gives what was said of the first one that failed, and nothing when all
    /// went well.
    [[nodiscard]] QString run(const QString &script);

    [[nodiscard]] player::Game &game() { return *m_game; }
    [[nodiscard]] player::Hand &hand() { return m_runner->hand(); }
    /// All that was said of the lines, one line each.
    [[nodiscard]] QStringList said() const { return m_said; }

private:
    std::shared_ptr<const player::GameData> m_data;
    std::unique_ptr<player::Game> m_game;
    QStringList m_said;
    std::unique_ptr<player::ScriptRunner> m_runner;
};

} // namespace sample
