#pragma once

#include "SessionFixture.h"
#include "host/Way.h"

/// A small editor in which a person can stray.
namespace SomeWays {

using Does = Way::Does;

constexpr const char *kProperties = "MapProperties";

inline Way way(const char *window, const char *control, const char *icon, const char *from, Does does,
               const char *to, bool drops = false)
{
    return {Played::spot(window, control), QString::fromLatin1(icon),
            QString::fromLatin1(from),     does,
            QString::fromLatin1(to),       drops};
}

/// A main window with a list, whose rows open a dialog by a double click and a menu by a right click; the
/// menu opens the dialog, too.
inline Ways someWays()
{
    return {way(kProperties, "cancel", "click", kProperties, Does::kCloses, kProperties, true),
            way(kProperties, "ok", "click", kProperties, Does::kCloses, kProperties),
            way("MainWindow", "maps", "doubleClick", "MainWindow", Does::kOpens, kProperties),
            way("MainWindow", "maps", "rightClick", "MainWindow", Does::kPopsUp, "MapPopup"),
            way("Menu", "MapPopup/newMap", "click", "MapPopup", Does::kOpens, kProperties),
            way("Menu", "@dismiss", "click", "MapPopup", Does::kCloses, "MapPopup")};
}

inline QString str(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace SomeWays
