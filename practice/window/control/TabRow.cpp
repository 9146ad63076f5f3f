#include "window/control/TabRow.h"

#include <QProxyStyle>

#include <utility>

namespace {

/// The system's style, with less room beside the text of a tab: how wide it is, its description says.
class SnugStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        constexpr int kRoomBesideText = 12;
        return metric == PM_TabBarTabHSpace ? kRoomBesideText
                                            : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

} // namespace

TabRow::TabRow(const QStringList &tabs, QVector<int> tabWidths, QWidget *parent)
    : QTabBar(parent)
    , m_tabWidths(std::move(tabWidths))
{
    auto *style = new SnugStyle;
    style->setParent(this);
    setStyle(style);
    setExpanding(false);
    setUsesScrollButtons(false);
    setDrawBase(false);
    for (const QString &tab : tabs) {
        addTab(tab);
    }
}

QSize TabRow::tabSizeHint(int index) const
{
    return {m_tabWidths.value(index, m_tabWidths.constLast()), height()};
}

QSize TabRow::minimumTabSizeHint(int index) const
{
    return tabSizeHint(index);
}
