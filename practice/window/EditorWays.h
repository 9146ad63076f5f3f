#pragma once

#include "host/Way.h"
#include "lesson/Condition.h"
#include "lesson/description/DescriptionSet.h"

/// What the controls of the described windows do to the windows, and what they report.
class EditorWays
{
public:
    /// @p descriptions outlive it.
    explicit EditorWays(const DescriptionSet *descriptions);

    /// Of the ways to close a window those that drop what was done there stand first.
    [[nodiscard]] const Ways &all() const { return m_ways; }

    /// Whether the control brings the condition about by itself.
    [[nodiscard]] bool canCause(const ControlSpot &spot, const Condition &condition) const;

    /// Whether each click on the control does the same once more: it is a button.
    [[nodiscard]] bool addsUp(const ControlSpot &spot) const;

    /// Key of the window in which what has this key is used; "Popup" for context menus, empty for the screen.
    [[nodiscard]] QString windowOf(const QString &key) const;

private:
    void addControl(const ControlDescription &control, const ControlSpot &by, const QString &from);
    void addAction(const ControlAction &action, const ControlSpot &by, const char *icon, const QString &from);
    void addDismissals(const QString &key);
    [[nodiscard]] bool hasWay(const ControlSpot &spot, Way::Does does, const QString &windowKey) const;
    [[nodiscard]] bool reports(const ControlSpot &spot, const Condition &condition) const;

    const DescriptionSet *m_descriptions;
    Ways m_ways;
};
