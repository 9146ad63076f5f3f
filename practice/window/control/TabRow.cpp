#include "window/control/TabRow.h"

#include <QMouseEvent>
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
    setTexts(tabs);
}

void TabRow::setTexts(const QStringList &tabs)
{
    while (count() > tabs.size()) {
        removeTab(count() - 1);
    }
    for (int tab = 0; tab < tabs.size(); ++tab) {
        if (tab == count()) {
            addTab(tabs.at(tab));
        } else if (tabText(tab) != tabs.at(tab)) {
            setTabText(tab, tabs.at(tab));
        }
    }
}

void TabRow::mouseReleaseEvent(QMouseEvent *event)
{
    QTabBar::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton && rect().contains(event->pos())) {
        Q_EMIT menuRequested(tabAt(event->pos()), event->globalPos());
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
