#pragma once

#include "host/ControlUse.h"
#include "window/ControlFinder.h"

/// Uses controls as a person does, with mouse and keys of its own making. They are not spontaneous events:
/// what a person presses meanwhile can be told from them.
class ControlHand
{
public:
    /// @p finder outlives the hand.
    explicit ControlHand(const ControlFinder *finder);

    /// False where the control cannot be used at present.
    [[nodiscard]] bool perform(const ControlUse &use) const;
    /// The same at @p focus, which has the keyboard, where no control is named. False where that is none of a
    /// window's controls, and for what is not done by keys.
    [[nodiscard]] static bool performAt(QWidget *focus, const ControlUse &use);

private:
    const ControlFinder *m_finder;
};
