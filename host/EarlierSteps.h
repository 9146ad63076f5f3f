#pragma once

#include "lesson/ControlSpot.h"
#include "lesson/Scenario.h"

class HostEditor;

/// What the steps before the present one tell of the way to it, for a person who did not come along it: steps
/// were skipped, or the lesson began in its midst.
class EarlierSteps
{
public:
    /// There are none.
    EarlierSteps() = default;
    /// The steps in front of @p index. @p editor outlives this.
    EarlierSteps(const HostEditor *editor, const Scenario &scenario, int index);

    /// With what the lesson has had the window or context menu opened last; none where it has not.
    [[nodiscard]] ControlSpot openingOf(const QString &windowKey) const;
    /// With what the lesson has had the activity begun last; none where it has not.
    [[nodiscard]] ControlSpot beginningOf(const QString &action) const;

private:
    /// What the last of them points at for which @p is holds.
    template<typename Is>
    [[nodiscard]] ControlSpot spotOfLast(Is is) const;

    const HostEditor *m_editor = nullptr;
    Scenario m_scenario;
    int m_index = 0;
};
