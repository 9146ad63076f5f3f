#pragma once

#include "pilot/Action.h"
#include "pilot/SeenOverlays.h"

#include <QVector>

#include <optional>

struct Step;

/// What there is to go by when a step is told.
struct Sight
{
    SeenOverlays overlays;
    /// Where the bubble was sent last, for this step or one before it, in global screen pixels. A learner
    /// goes by where the arrow points, wherever the editor takes its window to be by now.
    std::optional<QPoint> place;
    /// The step points into a window that is not open.
    bool lacksWindow = false;
};

/// What a learner does in a step: at the spot at which the arrow points once what the icon says, or a drag
/// from there where the hint asks for one, and then the button, if the step ends with one.
struct ActionPlan
{
    /// What is typed where a step wants a name and not a number.
    static constexpr auto kName = "Village";

    /// The spot, in global screen pixels; nothing when the step points nowhere.
    std::optional<QPoint> spot;
    /// What to do, in order; nothing to do in a step that is only waited for.
    QVector<Action> actions;
    /// How long the step takes by itself once that is done, in milliseconds, before it can be told broken.
    int waitMs = 0;
    /// It may have come too early and is done again: a game that has just begun does not hear each key.
    bool canComeToNothing = false;

    /// Nothing while the bubble is still on its way, or the window or the buttons that the step needs are not
    /// there.
    [[nodiscard]] static std::optional<ActionPlan> make(const Step &step, const Sight &sight,
                                                        bool answersYes);
    /// The same for one who has strayed: at the spot what the icon @p icon of the way back says.
    [[nodiscard]] static std::optional<ActionPlan> makeReturn(const QString &icon, const Sight &sight);
};
