#include "PilotRun.h"

#ifdef TUTORIAL_PILOT

#include "PilotProgress.h"
#include "PracticeEditor.h"
#include "ScriptedPlay.h"
#include "author/Outcome.h"
#include "pilot/x11/XConnection.h"
#include "pilot/x11/XEye.h"
#include "pilot/x11/XHand.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPushButton>

#include <cstdio>
#include <memory>

namespace {

/// The middle of the button that puts back, where the mouse reaches it.
std::optional<QPoint> putBackPlace()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *const window : windows) {
        const auto *const button = window->findChild<QPushButton *>(QStringLiteral("putBackButton"));
        if (button != nullptr && button->isVisible()) {
            const QPoint middle = button->mapToGlobal(button->rect().center());
            return QApplication::widgetAt(middle) == button ? std::optional(middle) : std::nullopt;
        }
    }
    return {};
}

/// What is otherwise in the game than the lesson's script of @p outcomes expects; empty when nothing is.
QString outcomeProblem(const PracticeEditor &editor, const PilotPlay &play, const QString &outcomes)
{
    const QFileInfo script(QDir(outcomes).filePath(play.lessonName() + QStringLiteral(".play")));
    if (outcomes.isEmpty() || (!script.exists() && play.lesson == 0)) {
        return {};
    }
    const ScriptedPlay played = ScriptedPlay::run(editor.projectFolder(), script.filePath());
    if (played.end == ScriptedPlay::End::kAsExpected) {
        return {};
    }
    QString failure = played.failure;
    failure.replace(QLatin1Char('\n'), QLatin1String("; "));
    return QStringLiteral("%1, %2").arg(script.fileName(), failure);
}

/// A line for everything that is otherwise in the project than the play was to leave it.
QStringList leftOtherwise(const PracticeEditor &editor, const PilotPlay &play, const QString &outcomes)
{
    QStringList problems;
    if (!play.scenario.isEmpty()) {
        problems = Outcome(play.scenario).problems(editor.projectFolder(), play.way);
    }
    problems += outcomeProblem(editor, play, outcomes);
    problems.removeAll(QString());
    QStringList lines;
    for (const QString &problem : qAsConst(problems)) {
        lines.append(QStringLiteral("%1: broken: %2").arg(play.title(), problem));
    }
    return lines;
}

} // namespace

bool letPilotPlay(PracticeEditor *editor, const PilotPlay &play, Pilot::Settings settings,
                  const QString &outcomes, QString *error)
{
    settings.title = play.title();
    settings.answers = play.answers();
    settings.putBackPlace = putBackPlace;
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
    QObject::connect(pilot, &Pilot::pressedAgain, pilot, [](const QString &line) {
        std::fprintf(stderr, "again: %s\n", line.toUtf8().constData());
    });
    QObject::connect(pilot, &Pilot::refused, pilot, [lacks] { *lacks = true; });
    QObject::connect(
        pilot, &Pilot::ended, pilot,
        [progress, lacks, editor, play, outcomes](const QStringList &broken) {
            const QStringList failures = broken.isEmpty() ? leftOtherwise(*editor, play, outcomes) : broken;
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

bool letPilotPlay(PracticeEditor *editor, const PilotPlay &play, Pilot::Settings settings,
                  const QString &outcomes, QString *error)
{
    Q_UNUSED(editor)
    Q_UNUSED(play)
    Q_UNUSED(settings)
    Q_UNUSED(outcomes)
    *error = QStringLiteral("it needs X11, which this system has not");
    return false;
}

#endif
