#pragma once

#include <QFont>
#include <QRect>
#include <QString>

class EditorTooltip;

/// What an overlay needs from whoever owns it. The overlays keep a plain pointer to it and never own it.
class OverlayHost
{
public:
    /// Sends one command to the host editor; dropped without a connection.
    virtual void send(const QString &text) = 0;

    /// An overlay became the active window: an open popup of the host editor is gone by now.
    virtual void onOverlayActivated() = 0;

    /// Shows or hides all overlays together, as the present state asks. Allocates nothing.
    virtual void updateOverlayVisibility() = 0;

    /// Whether a playback is on.
    [[nodiscard]] virtual bool running() const = 0;

    /// The host editor's rectangle in screen pixels; a null rectangle until it has said so.
    [[nodiscard]] virtual QRect hostRect() const = 0;

    /// The font of hints and buttons for the present locale.
    [[nodiscard]] virtual QFont overlayFont() = 0;

    /// The one transient tooltip, or null while there is none.
    [[nodiscard]] virtual EditorTooltip *editorTooltip() const = 0;
    virtual void setEditorTooltip(EditorTooltip *tooltip) = 0;

protected:
    OverlayHost() = default;
    ~OverlayHost() = default;
    OverlayHost(const OverlayHost &) = default;
    OverlayHost &operator=(const OverlayHost &) = default;
};
