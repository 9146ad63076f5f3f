#pragma once

#include <QTabBar>

/// A row of tabs that are all equally wide, whatever is written on them.
class TabRow : public QTabBar
{
    Q_OBJECT

public:
    /// @p tabWidth in pixels; a tab is as high as the row.
    TabRow(const QStringList &tabs, int tabWidth, QWidget *parent = nullptr);

protected:
    [[nodiscard]] QSize tabSizeHint(int index) const override;
    [[nodiscard]] QSize minimumTabSizeHint(int index) const override;

private:
    int m_tabWidth;
};
