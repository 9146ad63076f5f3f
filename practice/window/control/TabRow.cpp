#include "window/control/TabRow.h"

TabRow::TabRow(const QStringList &tabs, int tabWidth, QWidget *parent)
    : QTabBar(parent)
    , m_tabWidth(tabWidth)
{
    setExpanding(false);
    setUsesScrollButtons(false);
    setDrawBase(false);
    for (const QString &tab : tabs) {
        addTab(tab);
    }
}

QSize TabRow::tabSizeHint(int /*index*/) const
{
    return {m_tabWidth, height()};
}

QSize TabRow::minimumTabSizeHint(int index) const
{
    return tabSizeHint(index);
}
