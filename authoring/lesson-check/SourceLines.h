#pragma once

#include "lesson-check/Finding.h"

#include <QStringList>

/// The lines of a scenario or list file without their ends, after a check of the bytes around them.
class SourceLines
{
public:
    /// Which line ends the file may have; the same one throughout in either case.
    enum class LineEnd {
        kAny, ///< LF or CRLF
        kCrLf,
    };

    /// Splits @p bytes. What is wrong with the byte order mark, the encoding or the line ends of the file
    /// named
    /// @p file is appended to @p findings; the lines are there all the same.
    SourceLines(const QString &file, const QByteArray &bytes, LineEnd lineEnd, Findings &findings);

    [[nodiscard]] const QStringList &lines() const { return m_lines; }

private:
    void checkLineEnds(const QString &file, LineEnd lineEnd, Findings &findings);

    QStringList m_lines;
};
