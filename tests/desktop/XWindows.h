#pragma once

#include "BoundedTries.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

/// What the X server says, asked through its own tools: Qt's idea of another process' windows does not exist,
/// and its idea of our own may differ. Positions are root coordinates.
namespace XWindows {

struct Window
{
    QString id; ///< as in "0x400006"
    QRect rect; ///< of the window itself, without a frame
};

/// Output of @p program, or a line that says that it did not end.
QString run(const QString &program, const QStringList &arguments);

/// All mapped windows of the process, the topmost first.
QVector<Window> mapped(qint64 processId);
/// Those of @p size among them.
QVector<Window> mapped(qint64 processId, const QSize &size);

/// Size and place of each window as in "256x142 at 40,30", sorted.
QStringList placesOf(const QVector<Window> &windows);

/// The value of a property as xprop prints it, or nothing when the window does not have it.
QString property(const QString &id, const QString &name);

/// The opacity that the window asks for, in 255 steps; 255 when it asks for none.
int opacitySteps(const QString &id);

quintptr idOf(const Window &window);

/// Where the window itself is, without a frame.
QPoint positionOf(quintptr window);

/// The window that has the focus, as the window manager tells it; 0 for none.
quintptr activeWindow();

/// Moves the pointer to @p at, and tells whether a click there goes to @p window: the X server has it there,
/// and whatever lies above lets the click through.
bool takesClick(quintptr window, const QPoint &at);

/// One click of a button of the mouse, the left one by default.
void click(const QPoint &at, int button = 1);

/// What a part of the screen shows, put together by the compositor.
QImage screenshot(const QRect &area);

} // namespace XWindows
