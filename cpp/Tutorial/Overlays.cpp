#include "Tutorial/Overlays.h"

#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/TutorialIndicator.h"
#include "Tutorial/overlay/TutorialLog.h"

namespace {

// QWidget::show and hide cost allocations even when they change nothing.
void showWidget(QWidget *widget)
{
    if (widget && !widget->isVisible()) {
        widget->show();
    }
}

void hideWidget(QWidget *widget)
{
    if (widget && !widget->isHidden()) {
        widget->hide();
    }
}

} // namespace

void Overlays::createLog()
{
    if (!m_log) {
        m_log = new TutorialLog(nullptr, &m_host);
    }
}

void Overlays::createIndicator()
{
    if (!m_indicator) {
        m_indicator = new TutorialIndicator(nullptr, &m_host);
    }
}

void Overlays::createOrShowLog()
{
    if (m_log) {
        showLog();
    } else {
        createLog();
    }
}

void Overlays::showBubble() const
{
    if (m_indicator) {
        m_indicator->showTooltip();
    }
}

void Overlays::showIndicator() const
{
    if (m_indicator) {
        m_indicator->showTooltip();
        m_indicator->showButtons();
    }
}

void Overlays::showLog() const
{
    showWidget(m_log);
}

void Overlays::showEditorTooltip() const
{
    showWidget(m_editorTooltip);
}

void Overlays::hideIndicator() const
{
    if (m_indicator) {
        m_indicator->hideTooltip();
        m_indicator->hideButtons();
    }
}

void Overlays::hideLog() const
{
    hideWidget(m_log);
}

void Overlays::hideEditorTooltip() const
{
    hideWidget(m_editorTooltip);
}

void Overlays::rebuild()
{
    if (m_log) {
        m_log->close();
        m_log = new TutorialLog(nullptr, &m_host);
    }
    if (m_indicator) {
        const QVariantMap settings = m_indicator->getSettings();
        m_indicator->close();
        m_indicator = new TutorialIndicator(nullptr, &m_host);
        m_indicator->setSettings(settings);
    }
    if (m_editorTooltip) {
        const QVariantMap settings = m_editorTooltip->getSettings();
        // Closing takes the pointer away, through the host.
        m_editorTooltip->close();
        m_editorTooltip = new EditorTooltip(nullptr, &m_host);
        m_editorTooltip->setSettings(settings);
    }
}
