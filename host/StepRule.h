#pragma once

#include "lesson/EditorEvent.h"
#include "lesson/Scenario.h"

#include <optional>

class HostEditor;

/// What counts for a step beside the words of its condition: only what came about through that which the step
/// points at.
class StepRule
{
public:
    /// @p editor outlives the rule. @p pointed: the control, row, tab or cell that the step's position names.
    StepRule(const HostEditor *editor, const Step &step, const std::optional<ControlSpot> &pointed);

    /// Whether an event that meets the step's condition came about in the way that the step asks for.
    [[nodiscard]] bool counts(const EditorEvent &event) const;

private:
    [[nodiscard]] bool cameFromPointed(const EditorEvent &event) const;
    [[nodiscard]] bool isDismissal(const EditorEvent &event) const;

    const HostEditor *m_editor;
    Step m_step;
    std::optional<ControlSpot> m_pointed;
};
