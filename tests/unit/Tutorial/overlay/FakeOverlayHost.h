#pragma once

#include "Tutorial/overlay/OverlayHost.h"

#include <QStringList>

/// Stands in for the manager and writes down what the overlays ask of it.
class FakeOverlayHost final : public OverlayHost
{
public:
    void send(const QString &text) override { sent += text; }
    void onOverlayActivated() override { calls += QStringLiteral("activated"); }
    void updateOverlayVisibility() override { calls += QStringLiteral("visibility"); }
    [[nodiscard]] bool running() const override { return isRunning; }
    [[nodiscard]] QRect hostRect() const override { return rect; }
    [[nodiscard]] QFont overlayFont() override
    {
        ++fontRequests;
        return font;
    }
    [[nodiscard]] EditorTooltip *editorTooltip() const override { return tooltip; }
    void setEditorTooltip(EditorTooltip *editorTooltip) override { tooltip = editorTooltip; }

    QStringList sent;
    QStringList calls;
    bool isRunning = false;
    QRect rect{0, 0, 1920, 1080};
    QFont font;
    int fontRequests = 0;
    EditorTooltip *tooltip = nullptr;
};
