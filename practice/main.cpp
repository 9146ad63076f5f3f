#include "PracticeEditor.h"
#include "window/EditorWindowSet.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLocale>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

QStringList locales()
{
    return {QStringLiteral("en_US"), QStringLiteral("ja_JP"), QStringLiteral("zh_CN")};
}

QString defaultLocale()
{
    const QString name = QLocale::system().name();
    return locales().contains(name) ? name : locales().constFirst();
}

int complain(const QString &text)
{
    std::fprintf(stderr, "PracticeEditor: %s\n", qPrintable(text));
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
QString problemOf(const PracticeEditor::Options &options, const QString &lesson, const QString &answer)
{
    if (!lesson.isEmpty() && (options.lesson < 1 || options.lesson > 19)) {
        return QStringLiteral("there is no lesson %1; --lesson takes 1 to 19").arg(lesson);
    }
    if (!locales().contains(options.locale)) {
        return QStringLiteral("there is no locale %1; --locale takes %2")
            .arg(options.locale, locales().join(QStringLiteral(", ")));
    }
    if (options.pilot && options.lesson == 0) {
        return QStringLiteral("--pilot needs to know which lesson: add --lesson N");
    }
    if (answer != QLatin1String("yes") && answer != QLatin1String("no")) {
        return QStringLiteral("--answers takes yes or no, not \"%1\"").arg(answer);
    }
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("PracticeEditor"));
    // The frameless windows and hidden dialogs come and go; the main window alone decides.
    QApplication::setQuitOnLastWindowClosed(false);

    const QCommandLineOption lesson(QStringLiteral("lesson"), QStringLiteral("Play this lesson, 1 to 19."),
                                    QStringLiteral("N"));
    const QCommandLineOption locale(
        QStringLiteral("locale"), QStringLiteral("Language: en_US, ja_JP or zh_CN; by default the system's."),
        QStringLiteral("name"), defaultLocale());
    const QCommandLineOption pilot(
        QStringLiteral("pilot"),
        QStringLiteral("Let the lesson play itself, with real mouse and key events."));
    const QCommandLineOption answers(
        QStringLiteral("answers"),
        QStringLiteral("With --pilot: what it answers to the questions of a lesson, yes (default) or no."),
        QStringLiteral("answer"), QStringLiteral("yes"));
    const QCommandLineOption shots(
        QStringLiteral("shots"), QStringLiteral("With --pilot: leave a picture of each step in this folder."),
        QStringLiteral("folder"));
    const QCommandLineOption companion(
        QStringLiteral("companion"),
        QStringLiteral("The companion program; by default Tutorial beside this one."), QStringLiteral("path"),
        QDir(QApplication::applicationDirPath()).filePath(QStringLiteral("Tutorial")));
    const QCommandLineOption key(QStringLiteral("key"),
                                 QStringLiteral("Key of the link; by default a random one."),
                                 QStringLiteral("key"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A small game-making editor to play lessons in."));
    parser.addHelpOption();
    parser.addOptions({lesson, locale, pilot, answers, shots, companion, key});
    parser.process(application);

    PracticeEditor::Options options;
    options.lesson = parser.value(lesson).toInt();
    options.locale = parser.value(locale);
    options.pilot = parser.isSet(pilot);
    options.pilotAnswersYes = parser.value(answers) != QLatin1String("no");
    options.shotsFolder = parser.value(shots);
    options.companionProgram = parser.value(companion);
    options.key = parser.value(key);
    if (const QString problem = problemOf(options, parser.value(lesson), parser.value(answers));
        !problem.isEmpty()) {
        return complain(problem);
    }
    // The pilot's projects are nobody's.
    const QTemporaryDir pilotProjects;
    options.projectsFolder = options.pilot
                                 ? pilotProjects.path()
                                 : QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                                       .filePath(QStringLiteral("Practice projects"));

    QStringList errors;
    std::unique_ptr<EditorWindows> windows = EditorWindowSet::create(options.locale, &errors);
    if (windows == nullptr) {
        return complain(errors.join(QLatin1Char('\n')));
    }
    PracticeEditor editor(options, std::move(windows));
    QObject::connect(&editor, &PracticeEditor::ended, &application, &QApplication::exit,
                     Qt::QueuedConnection);
    endOnSignals(&application);
    QString error;
    if (!editor.start(&error)) {
        return complain(error);
    }
    return QApplication::exec();
}
