#pragma once

#include "player/scene/Frame.h"

#include <QRect>

namespace player {

/// Where the parts of a panel stand, in game pixels of the screen.
class PanelLayout
{
public:
    static constexpr int kPadding = 12;
    /// Height of a line or row.
    static constexpr int kLine = 24;
    static constexpr int kLetters = 16;
    static constexpr int kFace = 96;
    static constexpr int kBesideFace = 12;
    /// Of rows that have a text at the right.
    static constexpr int kBetweenColumns = 24;

    explicit PanelLayout(const Panel &panel);

    /// Whether the heading is what the panel is there for, in large letters.
    [[nodiscard]] static bool isBanner(const Panel &panel);

    /// Empty where there is none.
    [[nodiscard]] QRect face() const { return m_face; }
    /// The heading inside of the panel; of a message, whose speaker has a tab outside, it is empty.
    [[nodiscard]] QRect heading() const { return m_heading; }
    [[nodiscard]] QRect lines() const { return m_lines; }
    [[nodiscard]] QRect line(int line) const;
    /// The part in which rows stand.
    [[nodiscard]] QRect rows() const { return m_rows; }
    /// Empty for a row that is scrolled away, or that there is not.
    [[nodiscard]] QRect row(int row) const;
    /// The row at a place of the screen; -1 for none.
    [[nodiscard]] int rowAt(const QPointF &place) const;
    [[nodiscard]] bool hasRowsAbove() const { return m_firstLine > 0; }
    [[nodiscard]] bool hasRowsBelow() const { return m_firstLine + m_seenLines < m_allLines; }

private:
    QRect m_face;
    QRect m_heading;
    QRect m_lines;
    QRect m_rows;
    int m_count = 0;
    int m_columns = 1;
    /// Between two columns.
    int m_gap = 0;
    /// Lines of rows: the first one that is seen, how many are, and how many there are.
    int m_firstLine = 0;
    int m_seenLines = 0;
    int m_allLines = 0;
};

} // namespace player
