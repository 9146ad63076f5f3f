#include "host/Whereabouts.h"

#include "host/HostEditor.h"
#include "host/WayBack.h"

#include <algorithm>
#include <utility>

namespace {

/// The windows without the menu that may be open above them.
OpenWindows withoutMenu(const OpenWindows &open)
{
    return !open.isEmpty() && open.constLast().isMenu ? open.mid(0, open.size() - 1) : open;
}

bool areAlike(const OpenWindows &one, const OpenWindows &another)
{
    return std::equal(one.cbegin(), one.cend(), another.cbegin(), another.cend(),
                      [](const OpenWindow &a, const OpenWindow &b) { return a.isLike(b); });
}

} // namespace

Whereabouts::Whereabouts(const HostEditor *editor, const StepNeeds *needs, OpenWindows open)
    : m_editor(editor)
    , m_needs(needs)
    , m_open(std::move(open))
{
}

bool Whereabouts::isThere(const OpenWindows &open) const
{
    const QString needed = m_editor->windowOf(m_needs->step.windowKey);
    if (needed.isEmpty() || open.isEmpty()) {
        return needed.isEmpty();
    }
    const OpenWindows &begun = m_needs->start.open;
    if (needed == QLatin1String("Popup")) {
        const OpenWindow &top = open.constLast();
        const bool isKnown = !begun.isEmpty() && begun.constLast().isMenu;
        return top.isMenu && (!isKnown || areAlike(open, begun));
    }
    const OpenWindows windows = withoutMenu(open);
    const OpenWindows begunWindows = withoutMenu(begun);
    // Where the step's window was not on top from the start, it has to get there in any way.
    const bool isKnown = !begunWindows.isEmpty() && begunWindows.constLast().name == needed;
    return isKnown ? areAlike(windows, begunWindows)
                   : !windows.isEmpty() && windows.constLast().name == needed;
}

bool Whereabouts::hasOtherMeaning() const
{
    if (!m_needs->pointed || m_needs->start.meaning.isEmpty()) {
        return false;
    }
    const QString meaning = m_editor->meaningOf(*m_needs->pointed);
    return !meaning.isEmpty() && meaning != m_needs->start.meaning;
}

Stray Whereabouts::stray() const
{
    if (!m_needs->start.project.isEmpty() && m_editor->projectId() != m_needs->start.project) {
        return Stray::kProject;
    }
    if (!beginningOfEnded().isNone()) {
        return Stray::kEnded;
    }
    if (!m_needs->step.hasPosition()) {
        return Stray::kNot;
    }
    if (!isThere(m_open)) {
        return Stray::kWindows;
    }
    if (hasOtherMeaning() && (wayToMeaning() || m_editor->dataMark() != m_needs->start.dataMark)) {
        return Stray::kMeaning;
    }
    const std::optional<ControlSpot> &pointed = m_needs->pointed;
    if (!pointed || (m_editor->rectOf(*pointed) && m_editor->offers(*pointed, m_needs->step.condition))) {
        return activityAbove() ? Stray::kBehind : Stray::kNot;
    }
    const bool isInMenu = m_editor->windowOf(m_needs->step.windowKey) == QLatin1String("Popup");
    const bool hasMenu = !m_open.isEmpty() && m_open.constLast().isMenu;
    if (isInMenu || !hasMenu) {
        return Stray::kGone;
    }
    return isAskedMenu(m_open.constLast()) ? Stray::kNot : Stray::kCovered;
}

bool Whereabouts::isAskedMenu(const OpenWindow &menu) const
{
    return m_needs->step.icon == QLatin1String("rightClick") && menu.cause.isLike(*m_needs->pointed);
}

std::optional<Way> Whereabouts::wayBack(Stray stray) const
{
    switch (stray) {
    case Stray::kWindows:
        return wayToWindows();
    case Stray::kMeaning:
        return wayToMeaning();
    case Stray::kCovered: {
        const WayBack search(m_editor->ways());
        const OpenWindows below = withoutMenu(m_open);
        return search.first(m_open, [&below](const OpenWindows &open) { return areAlike(open, below); });
    }
    case Stray::kBehind: {
        const std::optional<Activity> above = activityAbove();
        return above ? std::optional(above->end) : std::nullopt;
    }
    case Stray::kEnded:
        return wayToBegin(beginningOfEnded());
    case Stray::kNot:
    case Stray::kProject:
    case Stray::kGone:
        break;
    }
    return {};
}

bool Whereabouts::isTheEndOf(const Activity &activity) const
{
    const Condition &condition = m_needs->step.condition;
    return condition.type() == Condition::Type::kAction && condition.target() == activity.action &&
           condition.value() == QLatin1String("close");
}

std::optional<Activity> Whereabouts::activityAbove() const
{
    const std::optional<QRect> rect = m_needs->pointed ? m_editor->rectOf(*m_needs->pointed) : std::nullopt;
    if (!rect) {
        return {};
    }
    const QVector<Activity> activities = m_editor->activities();
    const auto found = std::find_if(activities.cbegin(), activities.cend(), [&](const Activity &activity) {
        return activity.isOn && activity.rect.contains(rect->center()) && !isTheEndOf(activity);
    });
    return found != activities.cend() ? std::optional(*found) : std::nullopt;
}

ControlSpot Whereabouts::beginningOfEnded() const
{
    const QVector<Activity> activities = m_editor->activities();
    const auto found = std::find_if(activities.cbegin(), activities.cend(), [this](const Activity &activity) {
        return !activity.isOn && isTheEndOf(activity);
    });
    return found != activities.cend() ? m_needs->earlier.beginningOf(found->action) : ControlSpot();
}

std::optional<Way> Whereabouts::wayToBegin(const ControlSpot &beginning) const
{
    const QString window = m_editor->windowOf(beginning.windowKey);
    const auto isThere = [&window](const OpenWindows &open) {
        return !open.isEmpty() && open.constLast().name == window;
    };
    if (isThere(withoutMenu(m_open))) {
        return Way{beginning, QStringLiteral("click"), window, Way::Does::kShows, QString(), false};
    }
    return WayBack(m_editor->ways()).first(m_open, isThere);
}

std::optional<Way> Whereabouts::wayToWindows() const
{
    std::optional<Way> way = wayThatCanBeUsed();
    if (!way) {
        return {};
    }
    if (way->by.part < 0) {
        // Of a list it is the row with which it was done before.
        way->by.part = openingOf(*way).part;
    }
    // What is hidden behind another tab is out of reach until that is in front again, and with another tool
    // in the hand it is something else.
    const bool isOther = opensSomethingElse(*way);
    std::optional<Way> chosen = isOther || !m_editor->rectOf(way->by) ? wayToChosen() : std::nullopt;
    if (chosen) {
        return chosen;
    }
    const bool isWrong = isOther && m_editor->dataMark() != m_needs->start.dataMark;
    return isWrong ? std::nullopt : way;
}

std::optional<Way> Whereabouts::wayThatCanBeUsed() const
{
    Ways ways = m_editor->ways();
    const auto find = [this, &ways] {
        return WayBack(ways).first(m_open, [this](const OpenWindows &open) { return isThere(open); });
    };
    const std::optional<Way> shortest = find();
    std::optional<Way> way = shortest;
    while (way && isOutOfReach(*way)) {
        const ControlSpot by = way->by;
        const auto isBy = [&by](const Way &other) {
            return other.by.isSameControl(by);
        };
        ways.erase(std::remove_if(ways.begin(), ways.end(), isBy), ways.end());
        way = find();
    }
    // Where nothing else leads there, it may come into reach by itself.
    return way ? way : shortest;
}

bool Whereabouts::isOutOfReach(const Way &way) const
{
    return way.by.control != ControlSpot::dismiss() && !m_editor->rectOf(way.by) && !wayToChosen();
}

bool Whereabouts::opensSomethingElse(const Way &way) const
{
    const QString before = m_needs->start.openingMeanings.value(way.windowKey);
    const QString now = m_editor->meaningOf(way.by);
    return way.does != Way::Does::kCloses && !before.isEmpty() && !now.isEmpty() && now != before;
}

ControlSpot Whereabouts::openingOf(const Way &way) const
{
    QVector<ControlSpot> openings;
    for (const OpenWindow &window : m_needs->start.open) {
        if (window.name == way.windowKey) {
            openings.append(window.cause);
        } else if (window.cause.control.startsWith(way.windowKey + QLatin1Char('/'))) {
            openings.append(window.menuCause);
        }
    }
    openings.append(m_needs->earlier.openingOf(way.windowKey));
    openings.append(m_needs->start.lastCauses.value(way.windowKey));
    const auto found = std::find_if(openings.cbegin(), openings.cend(), [&way](const ControlSpot &spot) {
        return spot.isSameControl(way.by) && spot.part >= 0;
    });
    return found != openings.cend() ? *found : ControlSpot();
}

std::optional<Way> Whereabouts::wayToMeaning() const
{
    return wayToChosen(m_needs->pointed.value_or(ControlSpot()));
}

std::optional<Way> Whereabouts::wayToChosen(const ControlSpot &except) const
{
    const QVector<ControlSpot> now = m_editor->chosen();
    for (const ControlSpot &spot : m_needs->start.chosen) {
        if (!spot.isSameControl(except) && !now.contains(spot) && m_editor->rectOf(spot)) {
            return Way{spot,
                       QStringLiteral("click"),
                       m_editor->windowOf(spot.windowKey),
                       Way::Does::kShows,
                       QString(),
                       false};
        }
    }
    return {};
}
