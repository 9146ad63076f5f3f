#pragma once

#include <QElapsedTimer>
#include <QString>

/// What the standard output shows of a play: a line for each step, or in a terminal one line with a bar that
/// is rewritten in place.
class PilotProgress
{
public:
    /// @p title: how the play is called.
    explicit PilotProgress(const QString &title);

    /// The @p index th step of @p count, counted from 1, is on; @p line names it.
    void showStep(int index, int count, const QString &line);
    /// The play is over.
    void showEnd(bool isWhole);

private:
    const QString m_title;
    const bool m_isTerminal;
    int m_steps = 0;
    QElapsedTimer m_sinceStart;
};
