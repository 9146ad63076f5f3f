#pragma once

#include <QTabBar>

/// A row of tabs that are as wide as they are told to be, whatever is written on them.
class TabRow : public QTabBar
{
    Q_OBJECT

public:
    /// @p tabWidths in pixels: that of each tab, the last one for all that have none. A tab is as high as the
    /// row.
    TabRow(const QStringList &tabs, QVector<int> tabWidths, QWidget *parent = nullptr);

    /// Shows these tabs in place of the others. The current one stays where its place is still there.
    void setTexts(const QStringList &tabs);

Q_SIGNALS:
    /// The right button was clicked on a tab, -1 for none; @p position in global screen pixels.
    void menuRequested(int index, const QPoint &position);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override;

private:
    QVector<int> m_tabWidths;
};
