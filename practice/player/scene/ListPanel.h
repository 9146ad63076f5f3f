#pragma once

#include "player/scene/RowCursor.h"

#include <QVector>

namespace player {

class Game;

/// One row of a list that a person chooses from.
struct ListRow
{
    QString text;
    QString rightText;
    /// What it is.
    QString help;
    /// Why it cannot be chosen; empty when it can.
    QString reason;
    /// For whoever made the list.
    int value = 0;
};

/// A list on the screen: a panel whose rows are chosen from by keys and clicks. A row that cannot be chosen
/// says why.
class ListPanel
{
public:
    ListPanel() = default;
    /// @p rect is in game pixels.
    ListPanel(const QString &role, const QRect &rect, int columns = 1);

    void setTitle(const QString &title) { m_title = title; }
    void setRect(const QRect &rect) { m_rect = rect; }
    /// The current row stays as far as it is there.
    void setRows(const QVector<ListRow> &rows);
    void setCurrent(int row) { m_cursor.setCurrent(row); }
    /// What is written when there are no rows.
    void setEmptyText(const QString &text) { m_emptyText = text; }

    /// Never kChosen for a row that cannot be.
    RowCursor::Result tick(const Input &input);

    /// nullptr when there are no rows.
    [[nodiscard]] const ListRow *current() const;
    [[nodiscard]] int currentRow() const { return m_cursor.current(); }
    /// What the current row is, or why it cannot be chosen.
    [[nodiscard]] QString help() const;
    [[nodiscard]] Panel panel() const;

    /// One line at the top of the screen.
    [[nodiscard]] static Panel helpPanel(const QString &text);

private:
    QString m_role;
    QString m_title;
    QString m_emptyText;
    QRect m_rect;
    int m_columns = 1;
    QVector<ListRow> m_rows;
    RowCursor m_cursor;
};

} // namespace player
