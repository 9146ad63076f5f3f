#pragma once

#include <QString>

/// Whom an overlay tells what happened to it: whoever owns it. The overlays keep a plain pointer to it, never
/// own it and never ask it for anything; what they have to know is handed down to them.
class OverlayHost
{
public:
    /// Sends one command to the host editor; dropped without a connection.
    virtual void send(const QString &text) = 0;

    /// An overlay became the active window: an open popup of the host editor is gone by now.
    virtual void onOverlayActivated() = 0;

    /// Shows or hides all overlays together, as the present state asks. Allocates nothing.
    virtual void updateOverlayVisibility() = 0;

    /// The transient tooltip was closed: it must not be asked for anything any more.
    virtual void onEditorTooltipClosed() = 0;

protected:
    OverlayHost() = default;
    ~OverlayHost() = default;
    OverlayHost(const OverlayHost &) = default;
    OverlayHost &operator=(const OverlayHost &) = default;
};
