#include "PilotProject.h"

#include "host/HostCommands.h"
#include "host/HostLink.h"
#include "project/ProjectFolder.h"
#include "project/StartData.h"
#include "window/TileDrawing.h"

#include <QEventLoop>
#include <QTimer>

namespace {

using Files = QMap<QString, QString>;

/// By a clock that may be a fast one.
constexpr int kFilesMs = 300000;

/// The data files of @p step, such as "step3", from a companion of their own. None, with @p error, when they
/// do not come.
Files filesOf(const QString &step, const QString &program, const QString &locale, QString *error)
{
    Files files;
    HostLink link(program, QString(), locale);
    QEventLoop wait;
    QObject::connect(&link, &HostLink::connected, &wait, [&link, &locale, &step] {
        link.send(HostCommands::fromServer(locale));
        link.send(HostCommands::requestPresetData(step));
    });
    QObject::connect(&link, &HostLink::received, &wait, [&files, &wait](const QString &text) {
        const CompanionCommand command = CompanionCommand::read(text);
        if (command.kind == CompanionCommand::Kind::kFeedbackPresetData) {
            files = command.files;
            wait.quit();
        }
    });
    QObject::connect(&link, &HostLink::lost, &wait, &QEventLoop::quit);
    QTimer::singleShot(kFilesMs, &wait, &QEventLoop::quit);
    HostLink::Failure failure;
    if (!link.start(&failure)) {
        *error = QStringLiteral("%1: %2").arg(failure.name, failure.reason);
        return files;
    }
    wait.exec();
    if (files.isEmpty()) {
        *error = QStringLiteral("%1 does not give the data of %2").arg(program, step);
    }
    return files;
}

} // namespace

bool putProject(const PilotPlay &play, const QString &folder, const QString &program, QString *error)
{
    if (play.answers().constFirst() || !ProjectFolder::projectsIn(folder).isEmpty()) {
        return true;
    }
    QStringList errors;
    const StartData start =
        StartData::read(QStringLiteral(":/descriptions/data"), tileDrawings(), play.locale, &errors);
    if (!errors.isEmpty()) {
        *error = errors.constFirst();
        return false;
    }
    const QString step = play.step();
    const Files files = step.isEmpty() ? start.files() : filesOf(step, program, play.locale, error);
    return !files.isEmpty() &&
           ProjectFolder::create(folder, start.texts.value(QStringLiteral("projectName")), files, error)
               .has_value();
}
