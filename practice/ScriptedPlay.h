#pragma once

#include <QString>

#include <functional>

/// A project that is played by a script, without a window; docs/test-play.md has the words of one.
struct ScriptedPlay
{
    enum class End {
        kAsExpected,
        /// A line cannot be done, or what it expects did not come true.
        kOtherwise,
        /// The project or the script cannot be read, or the script has a line that says nothing.
        kUnreadable,
    };
    /// Hears a line for each one of the script that expects something, for the one that fails, and at the end
    /// for each problem that the game has named.
    using Say = std::function<void(const QString &)>;

    End end = End::kAsExpected;
    /// For a person: the line of the script that failed, with what was seen; or what cannot be read.
    QString failure;

    /// Plays the project in @p folder by the script in the file @p script, up to its end or to the first line
    /// that fails. Needs a core application and, for the texts of the game itself, its translator.
    [[nodiscard]] static ScriptedPlay run(const QString &folder, const QString &script, const Say &say = {});
};
