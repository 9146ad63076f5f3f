#include "host/StepRule.h"

#include "host/HostEditor.h"

#include <algorithm>

namespace {

/// The way in which @p spot closes the window, if it does.
std::optional<Way> closingWay(const Ways &ways, const ControlSpot &spot, const QString &windowKey)
{
    const auto found = std::find_if(ways.cbegin(), ways.cend(), [&](const Way &way) {
        return way.does == Way::Does::kCloses && way.windowKey == windowKey && way.by.isLike(spot);
    });
    return found == ways.cend() ? std::nullopt : std::optional(*found);
}

} // namespace

StepRule::StepRule(const HostEditor *editor, const Step &step, const std::optional<ControlSpot> &pointed)
    : m_editor(editor)
    , m_step(step)
    , m_pointed(pointed)
{
}

bool StepRule::counts(const EditorEvent &event) const
{
    if (m_step.condition.type() == Condition::Type::kMouseEvent && LessonWords::saysDrag(m_step.hint) &&
        event.value != QLatin1String("drag")) {
        return false;
    }
    if (event.cause.isNone()) {
        return true;
    }
    if (m_pointed && m_editor->canCause(*m_pointed, m_step.condition)) {
        return cameFromPointed(event);
    }
    return !isDismissal(event);
}

bool StepRule::cameFromPointed(const EditorEvent &event) const
{
    if (event.cause.isLike(*m_pointed)) {
        return true;
    }
    // The escape key stands for the button that does the same, and so does a double click on a row.
    const Ways ways = m_editor->ways();
    const std::optional<Way> asked = closingWay(ways, *m_pointed, event.target);
    const std::optional<Way> used = closingWay(ways, event.cause, event.target);
    const bool isShortcut = event.cause.control == ControlSpot::dismiss() ||
                            (used && used->icon == QLatin1String("doubleClick") && !used->drops);
    return isShortcut && asked && used && asked->drops == used->drops;
}

bool StepRule::isDismissal(const EditorEvent &event) const
{
    if (m_step.condition.type() != Condition::Type::kWindowState ||
        m_step.condition.value() != QLatin1String("close")) {
        return false;
    }
    const std::optional<Way> used = closingWay(m_editor->ways(), event.cause, event.target);
    return used ? used->drops : event.cause.control == ControlSpot::dismiss();
}
