#include "window/control/RowList.h"

#include "window/EditorWindow.h"
#include "window/MapPainter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace {

constexpr int kTilePixels = 22;

} // namespace

RowList::RowList(EditorWindow *window, MapPainter *painter, QString source, QString field, int rowHeight)
    : QListWidget(window)
    , m_window(window)
    , m_painter(painter)
    , m_source(std::move(source))
    , m_field(std::move(field))
    , m_rowHeight(rowHeight)
{
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    setIconSize({kTilePixels, kTilePixels});
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::currentRowChanged, this, &RowList::onCurrentRowChanged);
    connect(this, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *item) { Q_EMIT rowChosen(row(item)); });
}

void RowList::keyPressEvent(QKeyEvent *event)
{
    const int before = currentRow();
    QListWidget::keyPressEvent(event);
    if (currentRow() != before) {
        Q_EMIT rowChosen(currentRow());
    }
}

void RowList::mouseReleaseEvent(QMouseEvent *event)
{
    QListWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton && viewport()->rect().contains(event->pos())) {
        Q_EMIT menuRequested(event->globalPos());
    }
}

void RowList::refresh()
{
    const QSignalBlocker quiet(this);
    const QVector<Row> rows = m_window->rows(m_source);
    if (rows != m_rows) {
        m_rows = rows;
        clear();
        for (const Row &row : rows) {
            auto *item = new QListWidgetItem(QString(row.level * 4, QChar::Space) + row.text, this);
            item->setSizeHint({0, m_rowHeight});
            if (row.tile != GameMap::kEmpty) {
                item->setIcon(m_painter->tile(row.tile, 0, kTilePixels));
            }
        }
    }
    setCurrentRow(rowToShow());
}

int RowList::rowToShow() const
{
    if (m_field.isEmpty()) {
        return m_window->currentRow(m_source);
    }
    const int number = m_window->field(m_field).toInt();
    const auto isIt = [number](const Row &row) {
        return row.number == number;
    };
    const auto found = std::find_if(m_rows.cbegin(), m_rows.cend(), isIt);
    return found != m_rows.cend() ? int(found - m_rows.cbegin()) : -1;
}

void RowList::onCurrentRowChanged(int row)
{
    if (row < 0 || row >= m_rows.size()) {
        return;
    }
    if (m_field.isEmpty()) {
        m_window->setCurrentRow(m_source, row);
    } else {
        m_window->setField(m_field, m_rows.at(row).number);
    }
}
