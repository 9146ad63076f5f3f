#include "window/control/RowList.h"

#include "window/MapPainter.h"
#include "window/control/DeleteKey.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

#include <utility>

namespace {

constexpr int kTilePixels = 22;

} // namespace

RowList::RowList(EditorWindow *window, MapPainter *painter, Settings settings)
    : QListWidget(window)
    , m_window(window)
    , m_painter(painter)
    , m_settings(std::move(settings))
{
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    setIconSize({kTilePixels, kTilePixels});
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QListWidget::currentRowChanged, this, &RowList::onCurrentRowChanged);
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) {
        m_knownRow = row(item);
        Q_EMIT rowChosen(m_knownRow);
    });
    connect(this, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem *item) { Q_EMIT rowOpened(row(item)); });
}

std::function<void()> RowList::wishOf(const QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_settings.isOpened && currentRow() >= 0) {
        return [this] {
            Q_EMIT rowOpened(currentRow());
        };
    }
    if (isDeleteKey(*event) && m_settings.isDeletedFrom) {
        return [this] {
            Q_EMIT deleteRequested();
        };
    }
    if (event->matches(QKeySequence::Copy) && m_settings.isCopiedFrom) {
        return [this] {
            Q_EMIT copyRequested();
        };
    }
    if (event->matches(QKeySequence::Paste) && m_settings.isPastedTo) {
        return [this] {
            Q_EMIT pasteRequested();
        };
    }
    return {};
}

bool RowList::event(QEvent *event)
{
    // The list's own keys go before those of the menu bar.
    if (event->type() == QEvent::ShortcutOverride && wishOf(static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QListWidget::event(event);
}

void RowList::keyPressEvent(QKeyEvent *event)
{
    if (const std::function<void()> wish = wishOf(event)) {
        wish();
        return;
    }
    const int before = currentRow();
    QListWidget::keyPressEvent(event);
    if (currentRow() != before) {
        Q_EMIT rowChosen(currentRow());
    }
}

void RowList::mousePressEvent(QMouseEvent *event)
{
    m_knownRow = currentRow();
    QListWidget::mousePressEvent(event);
}

void RowList::mouseReleaseEvent(QMouseEvent *event)
{
    QListWidget::mouseReleaseEvent(event);
    if (currentRow() != m_knownRow) {
        m_knownRow = currentRow();
        Q_EMIT rowTaken(m_knownRow);
    }
    if (event->button() == Qt::RightButton && viewport()->rect().contains(event->pos())) {
        Q_EMIT menuRequested(event->globalPos());
    }
}

void RowList::refresh()
{
    const QSignalBlocker quiet(this);
    const QVector<Row> rows = m_settings.rows(m_window);
    if (rows != m_rows) {
        m_rows = rows;
        clear();
        for (const Row &row : rows) {
            auto *item = new QListWidgetItem(QString(row.level * 4, QChar::Space) + row.text, this);
            item->setSizeHint({0, m_settings.rowHeight});
            if (row.tile != GameMap::kEmpty) {
                item->setIcon(m_painter->tile(row.tile, 0, kTilePixels));
            }
        }
    }
    setCurrentRow(rowToShow());
}

void RowList::settle()
{
    if (!m_settings.field.isEmpty() && currentRow() < 0 && !m_rows.isEmpty()) {
        m_window->choose(m_settings.field, m_rows.constFirst());
    }
}

int RowList::rowToShow() const
{
    return m_settings.field.isEmpty() ? m_window->currentRow(m_settings.source)
                                      : rowWith(m_rows, fieldValue(m_window, m_settings.field));
}

void RowList::onCurrentRowChanged(int row)
{
    if (row < 0 || row >= m_rows.size()) {
        return;
    }
    if (m_settings.field.isEmpty()) {
        m_window->setCurrentRow(m_settings.source, row);
    } else {
        m_window->choose(m_settings.field, m_rows.at(row));
    }
}
