#pragma once

#include <QElapsedTimer>
#include <QString>

#include <cstddef>

/// A line on the error output that tells how far a long run is, rewritten in place and gone at the end.
/// Silent unless the error output is a terminal.
class ProgressLine
{
public:
    ProgressLine();
    ~ProgressLine();
    Q_DISABLE_COPY(ProgressLine)

    /// Says that @p done of the @p size bytes of @p file are made. Said often, it writes a few times a
    /// second.
    void show(const QString &file, std::size_t done, std::size_t size);
    /// Takes the line away.
    void clear();

private:
    bool m_isTerminal;
    bool m_isShown = false;
    QElapsedTimer m_sinceShown;
};
