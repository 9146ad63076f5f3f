#pragma once

#include "player/scene/Frame.h"

namespace player {

class Game;

/// A line of text with its control characters:
/// \v[n] a variable, \n[n] the name of an actor, \p[n] that of a member of the party, \g the currency, \c[n]
/// a colour, \. and \| a quarter of a second and a second, \! a wait for a key, \> and \< all at once and
/// not,
/// \^ no wait for a key at the end, \\ a backslash. Others are shown as they stand.
class TalkText
{
public:
    struct Token
    {
        enum class Kind { kLetter, kPause, kKey, kInstantly, kSlowly, kNoKey };

        Kind kind = Kind::kLetter;
        /// A letter with what belongs to it.
        QString letter;
        int colour = 0;
        int ticks = 0;
    };

    [[nodiscard]] static QVector<Token> read(const QString &line, const Game &game);
    /// The same in lines of so many game pixels at most, roughly: cut between words, or between two letters
    /// of an East Asian script where neither is a sign that belongs to the other.
    [[nodiscard]] static QVector<QVector<Token>> wrapped(const QVector<Token> &tokens, int width);
    /// All of the line, or its first letters.
    [[nodiscard]] static PanelLine shown(const QVector<Token> &tokens, int count);
    [[nodiscard]] static PanelLine shown(const QString &line, const Game &game);
    /// Game pixels that the text needs, roughly; letters of East Asian scripts are twice as wide.
    [[nodiscard]] static int width(const QString &text);
};

} // namespace player
