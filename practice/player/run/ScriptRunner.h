#pragma once

#include "player/run/Hand.h"
#include "player/run/Script.h"
#include "player/run/WordTable.h"

#include <functional>

namespace player {

/// Plays a game by a script, line by line, up to its end or to the first line that fails.
class ScriptRunner
{
public:
    /// Hears one line for each one of the script that expects something, and for one that fails: what was
    /// seen for what was expected.
    using Say = std::function<void(const QString &)>;

    /// The game has to outlive it.
    ScriptRunner(Game *game, Say say);

    /// Whether all lines did what they say.
    bool run(const QVector<ScriptLine> &lines);

    [[nodiscard]] Hand &hand() { return m_hand; }
    /// All that a script can say, as patterns of words.
    [[nodiscard]] static QStringList patterns();
    /// A line for each one that says what no script can say.
    [[nodiscard]] static QStringList unknown(const QVector<ScriptLine> &lines);

private:
    [[nodiscard]] static const WordTable &words();
    bool runLine(const ScriptLine &line);

    Hand m_hand;
    Say m_say;
};

} // namespace player
