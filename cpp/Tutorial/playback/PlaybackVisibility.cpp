#include "Tutorial/playback/PlaybackVisibility.h"

bool PlaybackVisibility::start()
{
    if (m_running) {
        return false;
    }
    m_running = true;
    return true;
}

bool PlaybackVisibility::stop()
{
    if (!m_running) {
        return false;
    }
    m_running = false;
    return true;
}

void PlaybackVisibility::hostHid()
{
    m_hostHidden = true;
    m_hiddenTicks = 0;
    m_hideDelay = 1;
}

void PlaybackVisibility::beginShow()
{
    m_showDelay = 1;
    m_ignoreShowTicks = kTicksToIgnoreShow;
}

PlaybackVisibility::Tick PlaybackVisibility::tick()
{
    Tick due;
    if (m_showDelay > 0 && --m_showDelay == 0) {
        due.showAgain = true;
        due.rebuild = m_hiddenTicks >= kTicksToRebuild;
        due.hiddenTicks = m_hiddenTicks;
    }
    if (m_hideDelay > 0 && --m_hideDelay == 0) {
        due.hide = true;
    }
    if (m_ignoreShowTicks > 0) {
        due.ignoreShowTicks = --m_ignoreShowTicks;
        due.ignoringShow = true;
    }
    if (m_hostHidden && !m_applicationActive) {
        ++m_hiddenTicks;
    }
    return due;
}

PlaybackVisibility::Showing PlaybackVisibility::showing() const
{
    if (!m_running) {
        return Showing::kNoPlayback;
    }
    return m_hostHidden && !m_applicationActive ? Showing::kHostHidden : Showing::kShown;
}
