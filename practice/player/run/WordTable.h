#pragma once

#include "player/run/Hand.h"

#include <QStringList>
#include <QVector>

#include <optional>

namespace player {

/// What became of a line of a script.
struct Seen
{
    bool isDone = false;
    /// What was seen, for a person.
    QString text;
};

/// The words that a script can have, and what each does.
class WordTable
{
public:
    /// @p values are those of the words that the pattern leaves open.
    using Doing = Seen (*)(Hand *hand, const QStringList &values);

    /// In a pattern, "#" is a whole number, "*" any word, and "..." all words that follow.
    void add(const char *pattern, Doing doing);
    /// Does what a line says; nothing when no pattern fits.
    [[nodiscard]] std::optional<Seen> run(Hand *hand, const QStringList &words) const;
    /// Whether a pattern fits the line.
    [[nodiscard]] bool knows(const QStringList &words) const;
    [[nodiscard]] QStringList patterns() const;

private:
    struct Row
    {
        QStringList pattern;
        Doing doing;
    };

    QVector<Row> m_rows;
};

} // namespace player
