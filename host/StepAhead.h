#pragma once

#include "lesson/EditorEvent.h"
#include "lesson/Scenario.h"

#include <optional>

class HostEditor;

/// The step behind one that only waits for the button Next, for a person who is quicker than the lesson: who
/// reads "type a name, then click Next" and presses OK at once has done both.
class StepAhead
{
public:
    /// There is none.
    StepAhead() = default;
    /// @p editor outlives this. What the step points at is what it is now.
    StepAhead(const HostEditor *editor, const Step &step);

    /// Whether the event is what that step asks for, through the control that it points at.
    [[nodiscard]] bool isDoneBy(const EditorEvent &event) const;
    /// What that step points at; nothing where there is no such step.
    [[nodiscard]] const std::optional<ControlSpot> &pointed() const { return m_pointed; }

private:
    const HostEditor *m_editor = nullptr;
    Step m_step;
    std::optional<ControlSpot> m_pointed;
    QString m_meaning;
};
