#pragma once

#include "player/game/Input.h"
#include "player/scene/Frame.h"

namespace player {

/// The current row of a list on the screen, moved by keys and clicks. Every list of a game works with it.
class RowCursor
{
public:
    enum class Result { kNone, kMoved, kChosen, kCancelled };

    explicit RowCursor(int rows = 0, int columns = 1, int current = 0);

    /// Keeps the current row as far as it is there.
    void setRows(int rows, int columns = 1);
    void setCurrent(int row);
    /// No row is the current one until a key moves.
    void setNone() { m_current = -1; }
    /// -1 while there is none.
    [[nodiscard]] int current() const { return m_current; }
    [[nodiscard]] int rows() const { return m_rows; }

    /// Arrow keys move, around the ends; the action key and a click choose.
    Result tick(const Input &input);
    /// Fills in columns and current row.
    void show(Panel *panel) const;

private:
    void move(int rows, int columns);

    int m_rows = 0;
    int m_columns = 1;
    int m_current = -1;
};

} // namespace player
