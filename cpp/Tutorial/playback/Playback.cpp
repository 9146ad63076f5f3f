#include "Tutorial/playback/Playback.h"

#include "tool/LogLine.h"
#include "tool/LogSource.h"

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;

} // namespace

Playback::Playback(QObject *parent)
    : QObject(parent)
    , m_overlays(*this)
{
}

void Playback::start()
{
    if (!m_visibility.start()) {
        return;
    }
    m_overlays.setRunning(true);
    m_windows.clear();
    Q_EMIT currentWindowKeyChanged();
    m_overlays.createOrShowLog();
    m_overlays.showIndicator();
}

void Playback::stop()
{
    if (m_visibility.stop()) {
        m_overlays.setRunning(false);
        m_overlays.hideIndicator();
        m_overlays.hideLog();
    }
}

void Playback::createOverlays()
{
    m_overlays.createLog();
    m_overlays.createIndicator(m_font.getFont());
}

void Playback::showTooltip(const QString &text, const QPoint &centre)
{
    m_overlays.showTooltip(text, centre, m_font.getFont());
}

void Playback::hostCameBack()
{
    if (m_visibility.takesShow() && m_overlays.indicator() != nullptr) {
        m_overlays.hideLog();
        m_overlays.hideIndicator();
        m_visibility.beginShow();
        logDebug(kSource, "TutorialManager::onReceived", 672) << "m_logHideIgnoreTimeout set to 10";
    }
    m_visibility.hostCameBack();
    updateOverlayVisibility();
}

void Playback::setApplicationState(Qt::ApplicationState state)
{
    if (state == Qt::ApplicationActive || state == Qt::ApplicationInactive) {
        m_visibility.setApplicationActive(state == Qt::ApplicationActive);
        updateOverlayVisibility();
    }
}

void Playback::tick()
{
    const PlaybackVisibility::Tick due = m_visibility.tick();
    if (due.showAgain) {
        logDebug(kSource, "TutorialManager::timerEvent", 427) << due.hiddenTicks;
        if (due.rebuild) {
            m_overlays.rebuild(m_font.getFont());
        }
        m_overlays.showLog();
        updateOverlayVisibility();
    }
    if (due.hide) {
        updateOverlayVisibility();
    }
    if (due.ignoringShow) {
        logDebug(kSource, "TutorialManager::timerEvent", 460)
            << "m_logHideIgnoreTimeout now" << due.ignoreShowTicks;
    }
}

void Playback::updateOverlayVisibility()
{
    switch (m_visibility.showing()) {
    case PlaybackVisibility::Showing::kNoPlayback:
        m_overlays.hideIndicator();
        m_overlays.hideLog();
        break;
    case PlaybackVisibility::Showing::kHostHidden:
        m_overlays.hideIndicator();
        m_overlays.hideLog();
        m_overlays.hideEditorTooltip();
        break;
    case PlaybackVisibility::Showing::kShown:
        m_overlays.showIndicator();
        m_overlays.showLog();
        m_overlays.showEditorTooltip();
        break;
    }
}

void Playback::pushWindow(const QString &windowKey)
{
    m_windows.push(windowKey);
    Q_EMIT currentWindowKeyChanged();
}

void Playback::popWindow()
{
    if (m_windows.pop()) {
        Q_EMIT currentWindowKeyChanged();
    }
}

void Playback::onOverlayActivated()
{
    if (m_windows.popPopup()) {
        Q_EMIT currentWindowKeyChanged();
    }
}

void Playback::setApplicationSize(const QSize &size)
{
    logDebug(kSource, "TutorialManager::setApplicationWindowSize", 596) << size.width() << size.height();
    m_windows.setApplicationSize(size);
}
