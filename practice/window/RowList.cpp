#include "window/RowList.h"

#include "window/MapPainter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

#include <utility>

namespace {

constexpr int kTilePixels = 22;

} // namespace

RowList::RowList(EditorProject *project, MapPainter *painter, QString source, int rowHeight, QWidget *parent)
    : QListWidget(parent)
    , m_project(project)
    , m_painter(painter)
    , m_source(std::move(source))
    , m_rowHeight(rowHeight)
{
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    setIconSize({kTilePixels, kTilePixels});
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::currentRowChanged, this, &RowList::onCurrentRowChanged);
    connect(this, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *item) { Q_EMIT rowChosen(row(item)); });
    connect(project, &EditorProject::changed, this, &RowList::refresh);
    refresh();
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
    const QVector<EditorProject::Row> rows = m_project->rows(m_source);
    if (rows != m_rows) {
        m_rows = rows;
        clear();
        for (const EditorProject::Row &row : rows) {
            auto *item = new QListWidgetItem(QString(row.level * 4, QChar::Space) + row.text, this);
            item->setSizeHint({0, m_rowHeight});
            if (row.tile != GameMap::kEmpty) {
                item->setIcon(m_painter->tile(row.tile, 0, kTilePixels));
            }
        }
    }
    setCurrentRow(m_project->currentRow(m_source));
}

void RowList::onCurrentRowChanged(int row)
{
    if (row >= 0) {
        m_project->setCurrentRow(m_source, row);
    }
}
