#pragma once

#include <QStringList>
#include <QVector>

namespace player {

/// One line of a script that says something.
struct ScriptLine
{
    /// From 1.
    int number = 0;
    QString text;
    /// What stands in quotation marks is one word.
    QStringList words;
};

/// The lines of a script for test play. "#" begins a comment; empty lines count, and say nothing.
namespace Script {

/// Adds a line to @p errors for each one that cannot be read.
[[nodiscard]] QVector<ScriptLine> read(const QString &text, QStringList *errors);

} // namespace Script

} // namespace player
