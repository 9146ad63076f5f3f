#include "Tutorial/playback/Overlays.h"

#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/OverlayWindow.h"
#include "Tutorial/overlay/TutorialIndicator.h"
#include "Tutorial/overlay/TutorialLog.h"

#include <utility>

void Overlays::setHostRect(const QRect &rect)
{
    m_hostRect = rect;
    if (m_indicator != nullptr) {
        m_indicator->setHostRect(rect);
    }
}

void Overlays::setRunning(bool running)
{
    m_running = running;
    if (m_indicator != nullptr) {
        m_indicator->setRunning(running);
    }
}

void Overlays::createLog()
{
    if (m_log == nullptr) {
        m_log = new TutorialLog(nullptr, &m_host);
    }
}

void Overlays::createIndicator(const QFont &font)
{
    if (m_indicator == nullptr) {
        m_indicator = new TutorialIndicator(nullptr, &m_host, font);
        m_indicator->setHostRect(m_hostRect);
        m_indicator->setRunning(m_running);
    }
}

void Overlays::createOrShowLog()
{
    if (m_log != nullptr) {
        showLog();
    } else {
        createLog();
    }
}

void Overlays::showTooltip(const QString &text, const QPoint &centre, const QFont &font)
{
    if (m_editorTooltip == nullptr) {
        m_editorTooltip = new EditorTooltip(nullptr, &m_host);
    }
    m_editorTooltip->show(text, centre.x(), centre.y(), font);
}

void Overlays::showStep(const IndicatorUpdate &update, const QFont &font) const
{
    if (m_indicator != nullptr) {
        m_indicator->showStep(update, font);
    }
}

void Overlays::moveTarget(const QPoint &target) const
{
    if (m_indicator != nullptr) {
        m_indicator->setNewXy(target.x(), target.y());
    }
}

void Overlays::aim(const QPoint &target, const QString &windowKey) const
{
    if (m_indicator != nullptr) {
        m_indicator->setTargetWindowOffset(target.x(), target.y(), windowKey, m_indicator->arrowVisible());
    }
}

void Overlays::showIndicator() const
{
    if (m_indicator != nullptr) {
        m_indicator->showTooltip();
        m_indicator->showButtons();
    }
}

void Overlays::showLog() const
{
    setOverlayShown(m_log, true);
}

void Overlays::showEditorTooltip() const
{
    setOverlayShown(m_editorTooltip, true);
}

void Overlays::hideIndicator() const
{
    if (m_indicator != nullptr) {
        m_indicator->hideTooltip();
        m_indicator->hideButtons();
    }
}

void Overlays::hideLog() const
{
    setOverlayShown(m_log, false);
}

void Overlays::hideEditorTooltip() const
{
    setOverlayShown(m_editorTooltip, false);
}

void Overlays::retire(QWidget *old)
{
    m_retired.emplace_back(old);
    closeOverlay(old);
}

void Overlays::rebuild(const QFont &font)
{
    // Seconds have passed since these were closed. Their windows take a megabyte.
    for (const QPointer<QWidget> &retired : std::exchange(m_retired, {})) {
        if (retired != nullptr) {
            retired->deleteLater();
        }
    }
    // A window that goes away changes what is active, and that brings the overlays into step from inside
    // close(): what is being closed is no longer ours then, or it would be shown again.
    if (TutorialLog *old = std::exchange(m_log, nullptr)) {
        retire(old);
        createLog();
    }
    if (TutorialIndicator *old = std::exchange(m_indicator, nullptr)) {
        const QVariantMap settings = old->getSettings();
        retire(old);
        createIndicator(font);
        m_indicator->setSettings(settings, font);
    }
    if (EditorTooltip *old = std::exchange(m_editorTooltip, nullptr)) {
        const QVariantMap settings = old->getSettings();
        retire(old);
        m_editorTooltip = new EditorTooltip(nullptr, &m_host);
        m_editorTooltip->setSettings(settings, font);
    }
}
