#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// What the programs settle with the desktop when they make the application object.
namespace Platform {

/// The way to the screen, and what the log is to say of it.
struct Choice
{
    QString plugin; ///< of Qt's platform plugins the one to take; empty: the choice is Qt's
    QString reason; ///< one line for the log; empty when nothing is out of the ordinary
};

/// Overlays stand at places of the screen and stay on top. Wayland's own windows can do neither, those of its
/// X11 side can: so in a Wayland session that has one it is X11, unless the environment names a plugin.
[[nodiscard]] Choice choose(const QProcessEnvironment &environment);

/// Those variables that are set, by which Qt would make its pixels larger than the screen's.
[[nodiscard]] QStringList scalingIn(const QProcessEnvironment &environment);

/// Has the application object that is made next run where choose() says. Returns the line for the log.
QString takeWindowSystem();

/// Has the application object that is made next count in the screen's own pixels, whatever the desktop asks
/// for: the two ends of the link speak of places in these.
void takeScreenPixels();

/// Keeps the X server's own warnings out of the log; to be called once the application object is there, so
/// that the word of a display that cannot be opened still arrives. QT_LOGGING_RULES brings them back.
void keepServerWarningsOut();

} // namespace Platform
