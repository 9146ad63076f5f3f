#include "XWindows.h"

#include "FilledParts.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>

namespace XWindows {

namespace {

constexpr int kLimitMs = 30000;
constexpr int kLooks = 100;

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    // The tools end in the middle when any window of anyone goes away under their eyes: that look does not
    // count.
    for (int look = 0; look < kLooks; ++look) {
        QProcess process;
        process.start(program, arguments);
        if (!process.waitForFinished(kLimitMs)) {
            return QStringLiteral("%1 did not end").arg(program).toUtf8();
        }
        if (!process.readAllStandardError().contains("X Error of failed request")) {
            return process.readAllStandardOutput();
        }
    }
    return QStringLiteral("%1 never came to its end").arg(program).toUtf8();
}

} // namespace

QString run(const QString &program, const QStringList &arguments)
{
    return QString::fromLocal8Bit(outputOf(program, arguments));
}

QVector<Window> mapped(qint64 processId)
{
    // All of a process' windows share the upper bits of their ids, so one of them finds the others in the
    // tree.
    const QStringList visible =
        filledParts(run(QStringLiteral("xdotool"), {QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                                    QStringLiteral("--pid"), QString::number(processId)}),
                    QLatin1Char('\n'));
    const QString tree = run(QStringLiteral("xwininfo"), {QStringLiteral("-root"), QStringLiteral("-tree")});
    static const QRegularExpression line(
        QStringLiteral("^ *(0x[0-9a-f]+) .* (\\d+)x(\\d+)\\+-?\\d+\\+-?\\d+  \\+(-?\\d+)\\+(-?\\d+)$"),
        QRegularExpression::MultilineOption);
    QVector<Window> windows;
    QRegularExpressionMatchIterator matches = line.globalMatch(tree);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString id = match.captured(1);
        if (visible.contains(QString::number(id.toULongLong(nullptr, 16)))) {
            windows += {id, QRect(match.captured(4).toInt(), match.captured(5).toInt(),
                                  match.captured(2).toInt(), match.captured(3).toInt())};
        }
    }
    return windows;
}

QVector<Window> mapped(qint64 processId, const QSize &size)
{
    QVector<Window> windows = mapped(processId);
    windows.erase(std::remove_if(windows.begin(), windows.end(),
                                 [&size](const Window &window) { return window.rect.size() != size; }),
                  windows.end());
    return windows;
}

QStringList placesOf(const QVector<Window> &windows)
{
    QStringList places;
    for (const Window &window : windows) {
        places += QStringLiteral("%1x%2 at %3,%4")
                      .arg(window.rect.width())
                      .arg(window.rect.height())
                      .arg(window.rect.x())
                      .arg(window.rect.y());
    }
    places.sort();
    return places;
}

QString property(const QString &id, const QString &name)
{
    const QString line = run(QStringLiteral("xprop"), {QStringLiteral("-id"), id, name});
    return line.section(QStringLiteral(" = "), 1).trimmed();
}

int opacitySteps(const QString &id)
{
    const QString opacity = property(id, QStringLiteral("_NET_WM_WINDOW_OPACITY"));
    return opacity.isEmpty() ? 255 : static_cast<int>(opacity.toULongLong() / 0x01010101U);
}

quintptr idOf(const Window &window)
{
    return window.id.toULongLong(nullptr, 16);
}

QPoint positionOf(quintptr window)
{
    const QString info = run(QStringLiteral("xwininfo"), {QStringLiteral("-id"), QString::number(window)});
    const auto number = [&info](const QString &axis) {
        const QRegularExpression line(QStringLiteral("Absolute upper-left %1: +(-?\\d+)").arg(axis));
        return line.match(info).captured(1).toInt();
    };
    return {number(QStringLiteral("X")), number(QStringLiteral("Y"))};
}

quintptr activeWindow()
{
    return run(QStringLiteral("xdotool"), {QStringLiteral("getactivewindow")}).trimmed().toULongLong();
}

bool takesClick(quintptr window, const QPoint &at)
{
    const QString seen = run(QStringLiteral("xdotool"),
                             {QStringLiteral("mousemove"), QString::number(at.x()), QString::number(at.y()),
                              QStringLiteral("getmouselocation"), QStringLiteral("--shell")});
    const quintptr taker = seen.section(QStringLiteral("WINDOW="), 1).trimmed().toULongLong();
    if (taker == window) {
        return true;
    }
    // Some window managers' frames answer for the window in them.
    const QString tree = run(QStringLiteral("xwininfo"),
                             {QStringLiteral("-tree"), QStringLiteral("-id"), QString::number(window)});
    const auto relative = [&tree](const QString &which) {
        const QRegularExpression line(which + QStringLiteral(" window id: (0x[0-9a-f]+)"));
        return line.match(tree).captured(1).toULongLong(nullptr, 16);
    };
    const quintptr frame = relative(QStringLiteral("Parent"));
    return taker == frame && frame != 0 && frame != relative(QStringLiteral("Root"));
}

void click(const QPoint &at, int button)
{
    run(QStringLiteral("xdotool"),
        {QStringLiteral("mousemove"), QString::number(at.x()), QString::number(at.y()),
         QStringLiteral("click"), QString::number(button)});
    QCoreApplication::processEvents();
}

QImage screenshot(const QRect &area)
{
    const QString crop =
        QStringLiteral("%1x%2+%3+%4").arg(area.width()).arg(area.height()).arg(area.x()).arg(area.y());
    return QImage::fromData(
        outputOf(QStringLiteral("import"),
                 {QStringLiteral("-silent"), QStringLiteral("-window"), QStringLiteral("root"),
                  QStringLiteral("-crop"), crop, QStringLiteral("+repage"), QStringLiteral("-depth"),
                  QStringLiteral("8"), QStringLiteral("ppm:-")}),
        "PPM");
}

} // namespace XWindows
