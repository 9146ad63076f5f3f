#include "host/WayBack.h"

#include <QSet>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/// A way back is a few uses long; what lies further away is not looked for.
constexpr int kMostStates = 4000;

QString signatureOf(const OpenWindows &open)
{
    QString signature;
    for (const OpenWindow &window : open) {
        for (const ControlSpot &spot : {window.cause, window.menuCause}) {
            signature += spot.windowKey + QLatin1Char('\t') + spot.control + QLatin1Char('\t') +
                         QString::number(spot.part) + QLatin1Char('\t');
        }
        signature += window.name + QLatin1Char('\n');
    }
    return signature;
}

void closeFrom(const QString &name, OpenWindows *open)
{
    const auto isIt = [&name](const OpenWindow &window) {
        return window.name == name;
    };
    open->erase(std::find_if(open->begin(), open->end(), isIt), open->end());
}

bool contains(const OpenWindows &open, const QString &name)
{
    return std::any_of(open.cbegin(), open.cend(),
                       [&name](const OpenWindow &window) { return window.name == name; });
}

/// A control is known by what it opens, then by what it pops up, then by what it closes.
int rankOf(Way::Does does)
{
    switch (does) {
    case Way::Does::kOpens:
        return 0;
    case Way::Does::kPopsUp:
        return 1;
    case Way::Does::kCloses:
    case Way::Does::kShows:
        break;
    }
    return 2;
}

} // namespace

WayBack::WayBack(Ways ways)
    : m_ways(std::move(ways))
{
    for (int i = 0; i < m_ways.size(); ++i) {
        const Way &its = m_ways.at(i);
        const auto isIt = [&](const Use &use) {
            const Way &way = m_ways.at(use.main);
            return way.isSameUse(its) && way.from == its.from;
        };
        const auto use = std::find_if(m_uses.begin(), m_uses.end(), isIt);
        if (use == m_uses.end()) {
            m_uses.append({{i}, i});
            continue;
        }
        if (isAnother(its, *use)) {
            Use other{{}, i};
            std::copy_if(use->ways.cbegin(), use->ways.cend(), std::back_inserter(other.ways),
                         [this](int index) { return m_ways.at(index).does == Way::Does::kCloses; });
            other.ways.append(i);
            m_uses.append(other);
            continue;
        }
        use->ways.append(i);
        if (rankOf(m_ways.at(i).does) < rankOf(m_ways.at(use->main).does)) {
            use->main = i;
        }
    }
}

bool WayBack::isAnother(const Way &way, const Use &use) const
{
    const bool comesUp = way.does == Way::Does::kOpens || way.does == Way::Does::kPopsUp;
    return comesUp && std::any_of(use.ways.cbegin(), use.ways.cend(),
                                  [&](int index) { return m_ways.at(index).does == way.does; });
}

std::optional<OpenWindows> WayBack::after(const Use &use, const OpenWindows &open) const
{
    OpenWindows next = open;
    ControlSpot menuCause;
    const QString &from = m_ways.at(use.main).from;
    if (!next.isEmpty() && next.constLast().isMenu) {
        // Any press outside of a menu closes it.
        const OpenWindow menu = next.takeLast();
        if (menu.name == from) {
            menuCause = menu.cause;
        } else if (next.isEmpty() || next.constLast().name != from) {
            return {};
        }
    } else if (next.isEmpty() || next.constLast().name != from) {
        return {};
    }
    for (const Way::Does does : {Way::Does::kCloses, Way::Does::kOpens, Way::Does::kPopsUp}) {
        for (const int index : use.ways) {
            const Way &way = m_ways.at(index);
            if (way.does != does) {
                continue;
            }
            if (does == Way::Does::kCloses) {
                closeFrom(way.windowKey, &next);
            } else if (!contains(next, way.windowKey)) {
                next.append({way.windowKey, does == Way::Does::kPopsUp, way.by, menuCause});
            }
        }
    }
    return next;
}

std::optional<Way> WayBack::first(const OpenWindows &open, const IsThere &isThere) const
{
    struct Place
    {
        OpenWindows open;
        /// Number of the use that the way there begins with; -1 where it begins.
        int firstUse;
    };
    if (isThere(open)) {
        return {};
    }
    QVector<Place> places{{open, -1}};
    QSet<QString> seen{signatureOf(open)};
    for (int at = 0; at < places.size() && places.size() < kMostStates; ++at) {
        const Place from = places.at(at);
        for (int number = 0; number < m_uses.size(); ++number) {
            const std::optional<OpenWindows> next = after(m_uses.at(number), from.open);
            if (!next || seen.contains(signatureOf(*next))) {
                continue;
            }
            const int firstUse = from.firstUse < 0 ? number : from.firstUse;
            if (isThere(*next)) {
                return m_ways.at(m_uses.at(firstUse).main);
            }
            seen.insert(signatureOf(*next));
            places.append({*next, firstUse});
        }
    }
    return {};
}
