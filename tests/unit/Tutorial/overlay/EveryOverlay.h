#pragma once

#include "FakeOverlayHost.h"
#include "TestIndicator.h"
#include "Tutorial/overlay/EditorTooltip.h"
#include "Tutorial/overlay/TutorialLog.h"

#include <QList>

/// One of each overlay.
class EveryOverlay
{
public:
    [[nodiscard]] const QWidget *bubble() const { return m_indicator.tooltip(); }
    [[nodiscard]] const QWidget *editorTooltip() const { return &m_editorTooltip; }

    /// The windows, as the person sees them.
    [[nodiscard]] QList<const QWidget *> windows() const
    {
        return {bubble(), TestIndicator::next(), TestIndicator::yes(), TestIndicator::no(), editorTooltip(),
                &m_log};
    }

private:
    FakeOverlayHost m_host;
    TestIndicator m_indicator{&m_host};
    EditorTooltip m_editorTooltip{nullptr, &m_host};
    TutorialLog m_log{nullptr, &m_host};
};
