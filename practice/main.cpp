#include "AuthorRun.h"
#include "PilotOptions.h"
#include "PilotPlay.h"
#include "PilotProject.h"
#include "PilotRun.h"
#include "PilotSeries.h"
#include "PracticeEditor.h"
#include "PracticeTranslator.h"
#include "TestPlayRun.h"
#include "lesson/LessonWords.h"
#include "platform/Platform.h"
#include "strip/LessonCatalog.h"
#include "window/EditorWindowSet.h"
#include "window/ToolIcon.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <optional>

#include <unistd.h>

namespace {

QString defaultLocale()
{
    const QString name = QLocale::system().name();
    return LessonWords::locales().contains(name) ? name : LessonWords::locales().constFirst();
}

/// How many lessons there are, which are asked for by their numbers.
int lessonCount()
{
    return LessonCatalog(QString()).count();
}

void say(const QString &text)
{
    std::fprintf(stderr, "PracticeEditor: %s\n", qPrintable(text));
}

int complain(const QString &text)
{
    say(text);
    return 2;
}

/// Ends of a pipe from the signal handler into the event loop.
int signalPipe[2] = {-1, -1};

void onSignal(int signal)
{
    const auto number = static_cast<char>(signal);
    // A full pipe holds a signal already.
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &number, 1);
}

/// Ends the program in good order when it is interrupted or terminated: the companion hears "bye", and no
/// socket file stays behind.
void endOnSignals(QApplication *application)
{
    if (::pipe(signalPipe) != 0) {
        return;
    }
    auto *notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, application);
    QObject::connect(notifier, &QSocketNotifier::activated, application, [] {
        char number = 0;
        if (::read(signalPipe[0], &number, 1) == 1) {
            QApplication::exit(128 + number);
        }
    });
    std::signal(SIGINT, onSignal);
    std::signal(SIGTERM, onSignal);
}

/// Empty when the options make sense.
QString problemOf(const PracticeEditor::Options &options, const QString &lesson)
{
    if (!lesson.isEmpty() && (options.lesson < 1 || options.lesson > lessonCount())) {
        return QStringLiteral("there is no lesson %1; --lesson takes 1 to %2")
            .arg(lesson, QString::number(lessonCount()));
    }
    if (!LessonWords::locales().contains(options.locale)) {
        return QStringLiteral("there is no locale %1; --locale takes %2")
            .arg(options.locale, LessonWords::locales().join(QStringLiteral(", ")));
    }
    return {};
}

struct CommandLine
{
    QCommandLineOption lesson{QStringLiteral("lesson"),
                              QStringLiteral("Play this lesson, 1 to %1.").arg(lessonCount()),
                              QStringLiteral("N")};
    QCommandLineOption locale{QStringLiteral("locale"),
                              QStringLiteral("Language: en_US, ja_JP or zh_CN; by default the system's."),
                              QStringLiteral("name"), defaultLocale()};
    QCommandLineOption companion{
        QStringLiteral("companion"),
        QStringLiteral("The companion program; by default Tutorial beside this one."), QStringLiteral("path"),
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("Tutorial"))};
    QCommandLineOption key{QStringLiteral("key"), QStringLiteral("Key of the link; by default a random one."),
                           QStringLiteral("key")};
    PilotOptions pilot;
    AuthorOptions author;
    TestPlayOptions testPlay;
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this.")};
    QCommandLineOption version{QStringLiteral("version"), QStringLiteral("Show the version.")};
    QCommandLineParser parser;
    bool isUnderstood;

    /// Needs an application, whose arguments it reads.
    CommandLine()
    {
        parser.setApplicationDescription(QStringLiteral("A small game-making editor to play lessons in."));
        parser.addOptions({lesson, locale, companion, key, help, version});
        pilot.addTo(&parser);
        author.addTo(&parser);
        testPlay.addTo(&parser);
        isUnderstood = parser.parse(QCoreApplication::arguments());
    }
};

/// Does what --help, --version, --dump-controls and --test-play ask for, without a display, and gives the
/// status. Nothing when none is asked for.
std::optional<int> runWithoutDisplay(int argc, char **argv)
{
    const auto asks = [](const char *word) {
        return qstrcmp(word, "--help") == 0 || qstrcmp(word, "-h") == 0 || qstrcmp(word, "--version") == 0 ||
               qstrcmp(word, "--dump-controls") == 0 || qstrncmp(word, "--test-play", 11) == 0;
    };
    if (std::none_of(argv, argv + argc, asks)) {
        return std::nullopt;
    }
    const QCoreApplication application(argc, argv);
    const CommandLine line;
    if (line.parser.isSet(line.help)) {
        std::fputs(qPrintable(line.parser.helpText()), stdout);
        return 0;
    }
    if (line.parser.isSet(line.version)) {
        std::fputs("PracticeEditor " TUTORIAL_VERSION "\n", stdout);
        return 0;
    }
    if (line.parser.isSet(line.author.dumpControls)) {
        QStringList errors;
        std::fputs(controlsForAuthors(&errors).constData(), stdout);
        std::fputs(qPrintable(errors.join(QLatin1Char('\n'))), stderr);
        return 0;
    }
    if (line.isUnderstood && line.parser.isSet(line.testPlay.testPlay)) {
        return line.testPlay.run(line.parser, line.parser.value(line.locale));
    }
    return std::nullopt; // the word is an option's value, or the options are not understood
}

} // namespace

int main(int argc, char **argv)
{
    if (const std::optional<int> status = runWithoutDisplay(argc, argv)) {
        return *status;
    }
    // A host tells places in the screen's own pixels, and lessons point into windows of these.
    Platform::takeScreenPixels();
    if (const QString reason = Platform::takeWindowSystem(); !reason.isEmpty()) {
        say(reason);
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("PracticeEditor"));
    QApplication::setWindowIcon(editorIcon());
    // The frameless windows and hidden dialogs come and go; the main window alone decides.
    QApplication::setQuitOnLastWindowClosed(false);

    const CommandLine line;
    const QCommandLineParser &parser = line.parser;
    if (!line.isUnderstood) {
        return complain(parser.errorText() + QStringLiteral(" --help tells what there is."));
    }
    if (!parser.positionalArguments().isEmpty()) {
        return complain(QStringLiteral("it takes options only, not \"%1\"; --help tells which")
                            .arg(parser.positionalArguments().constFirst()));
    }
    if (const QString problem = line.author.problemOf(parser); !problem.isEmpty()) {
        return complain(problem);
    }
    std::optional<PilotPlay> play;
    if (parser.isSet(line.pilot.pilot)) {
        QString problem = line.pilot.problemOf(parser);
        const QVector<PilotPlay> plays = pilotPlays(parser, &problem);
        if (!problem.isEmpty()) {
            return complain(problem);
        }
        if (plays.size() > 1) {
            const QString companion = QStringLiteral("--companion=") + parser.value(line.companion);
            return playSeries(plays, line.pilot.forEachPlay(parser) << companion, line.pilot.folders(parser),
                              parser.value(line.lesson) == QLatin1String("all"));
        }
        play = plays.constFirst();
    }
    PracticeEditor::Options options;
    options.lesson = parser.value(line.lesson).toInt();
    // An author who records begins with the editor as it is.
    options.hasLessonOfItsOwn = parser.isSet(line.author.scenario) ||
                                (parser.isSet(line.author.record) && !parser.isSet(line.lesson));
    options.beginsAtOnce = parser.isSet(line.author.from);
    options.locale = parser.value(line.locale);
    options.unattended = play.has_value();
    options.companionProgram = parser.value(line.companion);
    options.key = parser.value(line.key);
    if (const QString problem = problemOf(options, parser.value(line.lesson)); !problem.isEmpty()) {
        return complain(problem);
    }
    const PracticeTranslator translator(options.locale);
    // The pilot's projects are nobody's, unless somebody wants them.
    const QTemporaryDir pilotProjects;
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    options.projectsFolder = documents.filePath(QStringLiteral("Practice projects"));
    if (options.unattended) {
        options.projectsFolder = parser.isSet(line.pilot.projects)
                                     ? QFileInfo(parser.value(line.pilot.projects)).absoluteFilePath()
                                     : pilotProjects.path();
    }
    if (!options.unattended) {
        const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        options.placeFile = QDir(own).filePath(QStringLiteral("places.ini"));
        // What an author tries is no progress in the lesson of that name.
        options.progressFolder = parser.isSet(line.author.scenario) ? QString() : own;
    }

    QStringList errors;
    std::unique_ptr<EditorWindows> windows = EditorWindowSet::create(options.locale, &errors);
    if (windows == nullptr) {
        return complain(errors.join(QLatin1Char('\n')));
    }
    EditorWindows *const shown = windows.get();
    PracticeEditor editor(options, std::move(windows));
    line.author.apply(parser, options.locale, &editor, shown);
    QObject::connect(&editor, &PracticeEditor::ended, &application, &QApplication::exit,
                     Qt::QueuedConnection);
    endOnSignals(&application);
    QString error;
    if (play) {
        if (!putProject(*play, options.projectsFolder, options.companionProgram, &error)) {
            return complain(QStringLiteral("--pilot has no project to open: ") + error);
        }
        if (!letPilotPlay(&editor, *play, line.pilot.settings(parser), parser.value(line.pilot.outcomes),
                          &error)) {
            return complain(QStringLiteral("--pilot cannot play here: ") + error);
        }
    }
    if (!editor.start(&error)) {
        return complain(error);
    }
    return QApplication::exec();
}
