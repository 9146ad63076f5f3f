#pragma once

#include "pilot/SeenOverlays.h"

#include <QStringList>

#include <optional>

/// What the pilot sees. Places are global screen pixels.
class Eye
{
public:
    Eye() = default;
    virtual ~Eye() = default;

    Eye(const Eye &) = delete;
    Eye &operator=(const Eye &) = delete;
    Eye(Eye &&) = delete;
    Eye &operator=(Eye &&) = delete;

    /// The companion's visible windows; nothing when the look failed because a window went away under it.
    [[nodiscard]] virtual std::optional<SeenOverlays> overlays() = 0;
    /// Whether a click at @p spot would reach a window of the editor, and one that takes it.
    [[nodiscard]] virtual bool takesClickAt(const QPoint &spot) = 0;
    /// Whether a click at @p place, in pixels of the companion's @p window, would reach that window: nothing
    /// lies above it there.
    [[nodiscard]] virtual bool takesPressAt(quint32 window, const QPoint &place) = 0;
    /// Whether keys would reach the window of the editor at @p spot.
    [[nodiscard]] virtual bool takesKeysAt(const QPoint &spot) = 0;
    /// How many times a button of the mouse came up in a window of the editor, as the editor has heard of it.
    [[nodiscard]] virtual int clicksHeard() = 0;
    /// Whether a list has dropped down in the editor, which then gets the keys.
    [[nodiscard]] virtual bool seesList() = 0;
    /// The rows of that list; none when there is no list.
    [[nodiscard]] virtual QStringList listRows() = 0;
    /// What a message tells of the editor's windows, such as their titles, the one with the focus first.
    [[nodiscard]] virtual QString windows() = 0;
    /// Leaves a picture of the whole screen in the file @p path, a PNG. False when it cannot be written.
    [[nodiscard]] virtual bool takePicture(const QString &path) = 0;
};
