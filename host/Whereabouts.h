#pragma once

#include "host/Activity.h"
#include "host/EarlierSteps.h"
#include "host/StepStart.h"
#include "host/Way.h"

#include <optional>

class HostEditor;

/// In what a person has strayed from a step.
enum class Stray {
    kNot,
    /// Other windows are open than the step needs, or they came up in another way.
    kWindows,
    /// What the step points at means something else.
    kMeaning,
    /// A context menu lies over it.
    kCovered,
    /// Another project is open.
    kProject,
    /// What it points at is not there, though all else is.
    kGone,
    /// Something that goes on in a window of its own lies over it.
    kBehind,
    /// What it waits for the end of has ended before.
    kEnded,
};

/// What a step needs to be there to go on.
struct StepNeeds
{
    Step step;
    /// The control, row, tab or cell that its position names.
    std::optional<ControlSpot> pointed;
    /// What there was when it was reached.
    StepStart start;
    EarlierSteps earlier;
};

/// Where a person is, measured by what a step needs, and what leads back.
class Whereabouts
{
public:
    /// @p open: the windows that are open now, and how they came up. The others outlive this.
    Whereabouts(const HostEditor *editor, const StepNeeds *needs, OpenWindows open);

    [[nodiscard]] Stray stray() const;
    /// What to use next to get back; nothing when no control leads there.
    [[nodiscard]] std::optional<Way> wayBack(Stray stray) const;

private:
    [[nodiscard]] bool isThere(const OpenWindows &open) const;
    [[nodiscard]] bool hasOtherMeaning() const;
    /// What goes on above the control that the step points at, unless the step is about its end.
    [[nodiscard]] std::optional<Activity> activityAbove() const;
    /// What began the activity whose end the step waits for; none while that goes on.
    [[nodiscard]] ControlSpot beginningOfEnded() const;
    [[nodiscard]] bool isTheEndOf(const Activity &activity) const;
    [[nodiscard]] std::optional<Way> wayToBegin(const ControlSpot &beginning) const;
    /// Whether the step asks for the right click that has opened this menu, which may lie over the spot then.
    [[nodiscard]] bool isAskedMenu(const OpenWindow &menu) const;
    [[nodiscard]] std::optional<Way> wayToWindows() const;
    /// The shortest way to the windows whose first control is not grey; where there is none such, just the
    /// shortest.
    [[nodiscard]] std::optional<Way> wayThatCanBeUsed() const;
    /// Whether its control cannot be used now, nor when what was chosen is chosen again.
    [[nodiscard]] bool isOutOfReach(const Way &way) const;
    /// Whether its control means something else than when the window or menu was opened for the step.
    [[nodiscard]] bool opensSomethingElse(const Way &way) const;
    /// With what the window or menu that the way leads to was opened for the step; none where nobody knows.
    [[nodiscard]] ControlSpot openingOf(const Way &way) const;
    /// The first of what was chosen when the step began and is not now; nothing of the control of @p except.
    [[nodiscard]] std::optional<Way> wayToChosen(const ControlSpot &except = {}) const;
    /// The same for what the step points at: what a row is does not hang on which one of its list is chosen.
    [[nodiscard]] std::optional<Way> wayToMeaning() const;

    const HostEditor *m_editor;
    const StepNeeds *m_needs;
    OpenWindows m_open;
};
