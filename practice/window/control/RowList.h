#pragma once

#include "project/RowSources.h"

#include <QListWidget>

class EditorWindow;
class MapPainter;

/// A list or flattened tree of rows of one height, kept the same as a source of rows.
class RowList : public QListWidget
{
    Q_OBJECT

public:
    /// A list in @p window. @p painter outlives it. The current row is the one whose number stands in @p
    /// field, or, without a field, what the source has. @p rowHeight in pixels.
    RowList(EditorWindow *window, MapPainter *painter, QString source, QString field, int rowHeight);

    /// Shows what there is now.
    void refresh();

Q_SIGNALS:
    /// The person chose a row with mouse or keyboard, also when it was the selected one already.
    void rowChosen(int row);
    /// The right button was clicked; @p position in global screen pixels. The row under it is selected by
    /// then.
    void menuRequested(const QPoint &position);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    [[nodiscard]] int rowToShow() const;
    void onCurrentRowChanged(int row);

    EditorWindow *m_window;
    MapPainter *m_painter;
    QString m_source;
    QString m_field;
    int m_rowHeight;
    QVector<Row> m_rows;
};
