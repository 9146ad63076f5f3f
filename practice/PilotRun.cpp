#include "PilotRun.h"

#ifdef TUTORIAL_PILOT

#include "PracticeEditor.h"
#include "pilot/x11/XConnection.h"
#include "pilot/x11/XEye.h"
#include "pilot/x11/XHand.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

void printLine(std::FILE *stream, const QString &line)
{
    std::fprintf(stream, "%s\n", line.toUtf8().constData());
    std::fflush(stream); // whoever looks on through a pipe sees it now
}

} // namespace

bool letPilotPlay(PracticeEditor *editor, const Pilot::Settings &settings, QString *error)
{
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        *error = QStringLiteral("the windows are not on an X display but on Qt's platform \"%1\"")
                     .arg(QGuiApplication::platformName());
        return false;
    }
    const std::shared_ptr<const XConnection> x = XConnection::open(error);
    if (x == nullptr) {
        return false;
    }
    auto eye = std::make_unique<XEye>(x);
    XEye *const seeing = eye.get();
    auto *pilot = new Pilot(&editor->session(), settings, std::move(eye), std::make_unique<XHand>(x), editor);
    QObject::connect(editor, &PracticeEditor::companionConnected, pilot,
                     [seeing](qint64 pid) { seeing->setCompanion(pid); });
    QObject::connect(editor, &PracticeEditor::troubled, pilot, &Pilot::fail);
    QObject::connect(pilot, &Pilot::progress, pilot, [](const QString &line) { printLine(stdout, line); });
    QObject::connect(
        pilot, &Pilot::ended, pilot,
        [](const QString &failure) {
            if (!failure.isEmpty()) {
                printLine(stderr, failure);
            }
            QCoreApplication::exit(failure.isEmpty() ? 0 : 1);
        },
        Qt::QueuedConnection);
    return true;
}

#else

bool letPilotPlay(PracticeEditor *editor, const Pilot::Settings &settings, QString *error)
{
    Q_UNUSED(editor)
    Q_UNUSED(settings)
    *error = QStringLiteral("it needs X11, which this system has not");
    return false;
}

#endif
