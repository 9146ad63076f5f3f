#include "player/view/PanelLayout.h"

#include <algorithm>

namespace player {

bool PanelLayout::isBanner(const Panel &panel)
{
    return panel.role == QLatin1String("gameTitle") || panel.role == QLatin1String("gameOver");
}

PanelLayout::PanelLayout(const Panel &panel)
    : m_count(int(panel.rows.size()))
    , m_columns(qMax(1, panel.columns))
{
    QRect room = panel.rect.adjusted(kPadding, kPadding, -kPadding, -kPadding);
    if (!panel.face.isEmpty()) {
        const int side = qMin(kFace, room.height());
        m_face = QRect(room.topLeft(), QSize(side, side));
        room.setLeft(room.left() + side + kBesideFace);
    }
    if (!panel.title.isEmpty() && panel.role != QLatin1String("message")) {
        const int height =
            isBanner(panel) ? qMax(kLine, room.height() - kLine * int(panel.lines.size())) : kLine;
        m_heading = QRect(room.left(), room.top(), room.width(), height);
        room.setTop(room.top() + height);
    }
    m_lines = room;
    if (m_count == 0) {
        return;
    }
    room.setTop(room.top() + kLine * int(panel.lines.size()));
    m_rows = room;
    // What stands at the right of a row is not to be read as the beginning of the next one.
    const bool hasRightTexts = std::any_of(panel.rows.cbegin(), panel.rows.cend(),
                                           [](const PanelRow &row) { return !row.rightText.isEmpty(); });
    m_gap = hasRightTexts ? kBetweenColumns : 0;
    m_allLines = (m_count + m_columns - 1) / m_columns;
    m_seenLines = qBound(1, (room.height() + kLine / 4) / kLine, m_allLines);
    const int current = qBound(0, panel.current, m_count - 1) / m_columns;
    m_firstLine = qBound(0, current - m_seenLines / 2, m_allLines - m_seenLines);
}

QRect PanelLayout::line(int line) const
{
    return {m_lines.left(), m_lines.top() + line * kLine, m_lines.width(), kLine};
}

QRect PanelLayout::row(int row) const
{
    const int line = row / m_columns - m_firstLine;
    if (row < 0 || row >= m_count || line < 0 || line >= m_seenLines) {
        return {};
    }
    const int column = row % m_columns;
    const int width = m_rows.width() + m_gap;
    const int left = width * column / m_columns;
    const int right = width * (column + 1) / m_columns - m_gap;
    return {m_rows.left() + left, m_rows.top() + line * kLine, right - left, kLine};
}

int PanelLayout::rowAt(const QPointF &place) const
{
    for (int row = 0; row < m_count; ++row) {
        if (QRectF(this->row(row)).contains(place)) {
            return row;
        }
    }
    return -1;
}

} // namespace player
