#pragma once

#include "lesson/LessonWords.h"
#include "lesson/description/WindowDescription.h"

#include <QStringList>

/// A spot to point at, said in words: a control, or a row, tab or map cell in it.
class Spot
{
public:
    /// @p words: name of one of @p controls, then nothing for its middle, or "row N", "tab N" or "cell COLUMN
    /// ROW", counted from 0.
    Spot(const QVector<ControlDescription> &controls, const QStringList &words);

    /// What is wrong with the words; empty when nothing is.
    [[nodiscard]] const QString &problem() const { return m_problem; }

    /// The spot in the window, in pixels.
    [[nodiscard]] QPoint point() const { return m_point; }

    /// Where the bubble's window goes for its arrow to point there: "x" and "y" of a step.
    [[nodiscard]] QPoint position() const { return m_point - LessonWords::kTip; }

private:
    QString m_problem;
    QPoint m_point;
};
