#include "player/scene/RowCursor.h"

namespace player {

RowCursor::RowCursor(int rows, int columns, int current)
{
    setRows(rows, columns);
    setCurrent(current);
}

void RowCursor::setRows(int rows, int columns)
{
    m_rows = qMax(0, rows);
    m_columns = qMax(1, columns);
    m_current = m_rows == 0 ? -1 : qBound(0, m_current, m_rows - 1);
}

void RowCursor::setCurrent(int row)
{
    m_current = m_rows == 0 ? -1 : qBound(0, row, m_rows - 1);
}

void RowCursor::move(int rows, int columns)
{
    if (m_rows == 0) {
        return;
    }
    const int next = m_current + rows * m_columns + columns;
    if (next >= 0 && next < m_rows) {
        m_current = next;
    } else if (m_columns == 1 || columns != 0) {
        m_current = next < 0 ? m_rows - 1 : 0;
    }
}

RowCursor::Result RowCursor::tick(const Input &input)
{
    if (input.row && *input.row >= 0 && *input.row < m_rows) {
        m_current = *input.row;
        return Result::kChosen;
    }
    const int before = m_current;
    for (const GameKey key : input.pressed) {
        switch (key) {
        case GameKey::kUp:
            move(-1, 0);
            break;
        case GameKey::kDown:
            move(1, 0);
            break;
        case GameKey::kLeft:
            move(0, m_columns > 1 ? -1 : 0);
            break;
        case GameKey::kRight:
            move(0, m_columns > 1 ? 1 : 0);
            break;
        case GameKey::kAct:
            return m_current >= 0 ? Result::kChosen : Result::kNone;
        case GameKey::kCancel:
            return Result::kCancelled;
        case GameKey::kMenu:
            break;
        }
    }
    return m_current == before ? Result::kNone : Result::kMoved;
}

void RowCursor::show(Panel *panel) const
{
    panel->columns = m_columns;
    panel->current = m_current;
}

} // namespace player
