#pragma once

/// Decides when the overlays may be seen: a value that counts ticks of 100 ms and knows no window.
///
/// The host editor hides and shows itself with a delay of one tick here. Overlays that stayed hidden long
/// enough are to be built anew when it comes back, since a window system may have forgotten their stacking.
class PlaybackVisibility
{
public:
    static constexpr int kTicksToRebuild = 30;
    static constexpr int kTicksToIgnoreShow = 10;

    enum class Showing {
        kNoPlayback, ///< everything hidden but the transient tooltip, which is left alone
        kHostHidden, ///< everything hidden
        kShown       ///< everything shown as far as its own flags allow
    };

    /// What one tick asks for, in this order.
    struct Tick
    {
        bool showAgain = false;    ///< the delay after a "show" of the host editor is over
        bool rebuild = false;      ///< with showAgain: build the overlays anew first
        int hiddenTicks = 0;       ///< with showAgain: how long they were hidden
        bool hide = false;         ///< the delay after a "hide" of the host editor is over
        bool ignoringShow = false; ///< the guard against a second "show" counted down
        int ignoreShowTicks = 0;   ///< with ignoringShow: how many ticks are left of it
    };

    /// A playback began. False when one is on already.
    bool start();
    /// The playback ended. False when none was on.
    bool stop();
    [[nodiscard]] bool running() const { return m_running; }

    void setApplicationActive(bool active) { m_applicationActive = active; }

    /// The host editor hid itself: nothing is hidden before the next tick.
    void hostHid();
    /// The host editor is back. Call beginShow() first when its overlays are to blink.
    void hostCameBack() { m_hostHidden = false; }
    /// Whether a "show" hides the overlays for one tick; false while an earlier one still counts.
    [[nodiscard]] bool takesShow() const { return m_ignoreShowTicks == 0; }
    void beginShow();

    [[nodiscard]] Tick tick();

    [[nodiscard]] Showing showing() const;

private:
    bool m_running = false;
    bool m_hostHidden = false;
    bool m_applicationActive = false;
    int m_hiddenTicks = 0;
    int m_showDelay = 0;
    int m_hideDelay = 0;
    int m_ignoreShowTicks = 0;
};
