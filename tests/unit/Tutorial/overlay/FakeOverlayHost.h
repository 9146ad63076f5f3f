#pragma once

#include "Tutorial/overlay/OverlayHost.h"

#include <QStringList>

/// Stands in for the manager and writes down what the overlays tell it.
class FakeOverlayHost final : public OverlayHost
{
public:
    void send(const QString &text) override { sent += text; }
    void onOverlayActivated() override { calls += QStringLiteral("activated"); }
    void updateOverlayVisibility() override { calls += QStringLiteral("visibility"); }
    void onEditorTooltipClosed() override { calls += QStringLiteral("tooltip closed"); }

    QStringList sent;
    QStringList calls;
};
