#pragma once

#include "window/EditorProject.h"

#include <QListWidget>

class MapPainter;

/// A list or flattened tree of rows of one height, kept the same as a source of the project.
class RowList : public QListWidget
{
    Q_OBJECT

public:
    /// @p project and @p painter outlive the list. @p rowHeight in pixels.
    RowList(EditorProject *project, MapPainter *painter, QString source, int rowHeight,
            QWidget *parent = nullptr);

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
    void refresh();
    void onCurrentRowChanged(int row);

    EditorProject *m_project;
    MapPainter *m_painter;
    QString m_source;
    int m_rowHeight;
    QVector<EditorProject::Row> m_rows;
};
