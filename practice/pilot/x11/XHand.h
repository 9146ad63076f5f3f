#pragma once

#include "pilot/Hand.h"
#include "pilot/x11/XKeyboard.h"

#include <QVector>

class QPoint;

/// Real mouse and key events, as the X server makes them up for its XTEST extension.
class XHand : public Hand
{
public:
    explicit XHand(std::shared_ptr<const XConnection> x);

    [[nodiscard]] Result perform(const Action &action) override;

private:
    /// Clicks with a button of the mouse, so many times at @p place inside of @p window. Nothing moves
    /// meanwhile.
    Result click(xcb_window_t window, const QPoint &place, uint8_t button, int times = 1);
    /// One part of a drag with the left button.
    Result drag(const Action &action);
    /// Moves the pointer to @p place inside of @p window, the last bit of the way seen by what is below it.
    void goTo(xcb_window_t window, const QPoint &place);
    /// Strikes all of the keys, or none when there is no key for one of them.
    Result strike(const QVector<std::optional<XKeyboard::Key>> &keys);
    [[nodiscard]] bool isVisible(xcb_window_t window) const;
    void fake(uint8_t what, uint8_t which);

    std::shared_ptr<const XConnection> m_x;
};
