#pragma once

#include "window/control/ControlReader.h"

#include <QListWidget>

/// A list or flattened tree of rows of one height, kept the same as what there is to show.
class RowList : public QListWidget
{
    Q_OBJECT

public:
    struct Settings
    {
        Rows rows;
        /// Which row is the current one is kept for this source, or, where there is a field, the row is the
        /// one that stands in it.
        QString source;
        QString field;
        /// In pixels.
        int rowHeight = 0;
        /// Whether the keys that open, delete, copy and paste are the list's: otherwise they are left to the
        /// window.
        bool isOpened = false;
        bool isDeletedFrom = false;
        bool isCopiedFrom = false;
        bool isPastedTo = false;
    };

    /// A list in @p window. @p painter outlives it.
    RowList(EditorWindow *window, MapPainter *painter, Settings settings);

    /// Shows what there is now.
    void refresh();
    /// Gives the field the first row where no row stands for what it holds.
    void settle();

Q_SIGNALS:
    /// The person chose a row with mouse or keyboard, also when it was the selected one already.
    void rowChosen(int row);
    /// Another row is the current one by something else that was done with the mouse: a click of another
    /// button than the left one, or drawing it over the rows.
    void rowTaken(int row);
    /// A row was clicked twice, or the return key was pressed on it.
    void rowOpened(int row);
    /// The right button was clicked; @p position in global screen pixels. The row under it is selected by
    /// then.
    void menuRequested(const QPoint &position);
    /// The keys that delete, copy and paste were pressed.
    void deleteRequested();
    void copyRequested();
    void pasteRequested();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    /// What the key asks for; nothing for a key that the list leaves to others.
    [[nodiscard]] std::function<void()> wishOf(const QKeyEvent *event);
    [[nodiscard]] int rowToShow() const;
    void onCurrentRowChanged(int row);

    EditorWindow *m_window;
    MapPainter *m_painter;
    Settings m_settings;
    QVector<Row> m_rows;
    /// The row that was chosen with the mouse last, or that was the current one when a button of it went
    /// down.
    int m_knownRow = -1;
};
