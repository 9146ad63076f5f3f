#include "player/scene/ListPanel.h"

namespace player {

namespace {

const QRect kHelp(8, 8, 624, 48);

} // namespace

ListPanel::ListPanel(const QString &role, const QRect &rect, int columns)
    : m_role(role)
    , m_rect(rect)
    , m_columns(columns)
{
}

void ListPanel::setRows(const QVector<ListRow> &rows)
{
    m_rows = rows;
    m_cursor.setRows(int(rows.size()), m_columns);
}

RowCursor::Result ListPanel::tick(const Input &input)
{
    const RowCursor::Result result = m_cursor.tick(input);
    const ListRow *row = current();
    const bool canChoose = row != nullptr && row->reason.isEmpty();
    return result == RowCursor::Result::kChosen && !canChoose ? RowCursor::Result::kNone : result;
}

const ListRow *ListPanel::current() const
{
    const int row = m_cursor.current();
    return row >= 0 && row < m_rows.size() ? &m_rows.at(row) : nullptr;
}

QString ListPanel::help() const
{
    const ListRow *row = current();
    if (row == nullptr) {
        return {};
    }
    return row->reason.isEmpty() ? row->help : row->reason;
}

Panel ListPanel::panel() const
{
    Panel panel;
    panel.role = m_role;
    panel.rect = m_rect;
    panel.title = m_title;
    for (const ListRow &row : m_rows) {
        PanelRow shown;
        shown.text = row.text;
        shown.rightText = row.rightText;
        shown.isEnabled = row.reason.isEmpty();
        panel.rows.append(shown);
    }
    if (m_rows.isEmpty() && !m_emptyText.isEmpty()) {
        panel.lines.append(PanelLine(m_emptyText));
    }
    m_cursor.show(&panel);
    return panel;
}

Panel ListPanel::helpPanel(const QString &text)
{
    Panel panel;
    panel.role = QStringLiteral("help");
    panel.rect = kHelp;
    panel.lines.append(PanelLine(text));
    return panel;
}

} // namespace player
