#pragma once

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

/// The value of a property as xprop prints it, or nothing when the window does not have it.
QString property(const QString &id, const QString &name);

/// The opacity that the window asks for, in 255 steps; 255 when it asks for none.
int opacitySteps(const QString &id);

/// The window that has the focus, as the window manager tells it; 0 for none.
quintptr activeWindow();

/// One click of the left button on the root window.
void click(const QPoint &at);

/// What a part of the screen shows, put together by the compositor.
QImage screenshot(const QRect &area);

} // namespace XWindows
