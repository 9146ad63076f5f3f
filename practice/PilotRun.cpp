#include "PilotRun.h"

#ifdef TUTORIAL_PILOT

#include "PilotProgress.h"
#include "PracticeEditor.h"
#include "pilot/x11/XConnection.h"
#include "pilot/x11/XEye.h"
#include "pilot/x11/XHand.h"

#include <QGuiApplication>

#include <cstdio>
#include <memory>

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
    const auto progress = std::make_shared<PilotProgress>(settings.title);
    const auto lacks = std::make_shared<bool>(false);
    QObject::connect(editor, &PracticeEditor::companionConnected, pilot,
                     [seeing](qint64 pid) { seeing->setCompanion(pid); });
    QObject::connect(editor, &PracticeEditor::troubled, pilot, &Pilot::fail);
    QObject::connect(
        pilot, &Pilot::stepReached, pilot,
        [progress](int index, int count, const QString &line) { progress->showStep(index, count, line); });
    QObject::connect(pilot, &Pilot::refused, pilot, [lacks] { *lacks = true; });
    QObject::connect(
        pilot, &Pilot::ended, pilot,
        [progress, lacks](const QStringList &failures) {
            progress->showEnd(failures.isEmpty());
            for (const QString &failure : failures) {
                std::fprintf(stderr, "%s\n", failure.toUtf8().constData());
            }
            QCoreApplication::exit(failures.isEmpty() ? 0 : *lacks ? kLessonLacks : 1);
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
