#include "Tutorial/overlay/OverlayStyle.h"
#include "lesson-check/LessonLibrary.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLoggingCategory>
#include <QTextStream>

#include <algorithm>

namespace {

enum ExitStatus { kClean = 0, kFindings = 1, kUsage = 2 };

} // namespace

int main(int argc, char *argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen"); // it only measures text
    }
    QLoggingCategory::setFilterRules(QStringLiteral("default=false")); // the report alone is of interest
    QApplication application(argc, argv);
    OverlayStyle::apply();
    QTextStream out(stdout);
    QTextStream err(stderr);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Checks the lessons of a source tree: scenario files, catalogues, figures.\n"
                       "Status 0: nothing is wrong. 1: something is. 2: the command line is."));
    parser.addPositionalArgument(QStringLiteral("directory"),
                                 QStringLiteral("the source tree, the current directory by default"),
                                 QStringLiteral("[directory]"));
    const QCommandLineOption complete(QStringLiteral("complete"),
                                      QStringLiteral("every lesson of the list has to have its file"));
    const QCommandLineOption scenarios(
        QStringLiteral("scenarios"),
        QStringLiteral(
            "in place of the lessons, check the scenario files in this folder of the tree, with the "
            "catalogues beside them"),
        QStringLiteral("folder"));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("show this"));
    const QCommandLineOption version(QStringLiteral("version"), QStringLiteral("show the version"));
    parser.addOptions({complete, scenarios, help, version});
    const bool understood = parser.parse(QCoreApplication::arguments());
    if (!understood || parser.positionalArguments().size() > 1) {
        err << "lesson-check: "
            << (understood ? QStringLiteral("One directory at most.") : parser.errorText()) << "\n\n"
            << parser.helpText();
        return kUsage;
    }
    if (parser.isSet(help)) {
        out << parser.helpText();
        return kClean;
    }
    if (parser.isSet(version)) {
        out << "lesson-check " TUTORIAL_VERSION "\n";
        return kClean;
    }

    const QString root = parser.positionalArguments().value(0, QStringLiteral("."));
    LessonLibrary library(root);
    if (!library.exists()) {
        err << "lesson-check: " << root
            << " has no resource/qml/Tutorial/TutorialList.js; name the source tree\n";
        return kUsage;
    }
    const Findings findings = parser.isSet(scenarios) ? library.checkScenarios(parser.value(scenarios))
                                                      : library.check(parser.isSet(complete));
    for (const Finding &finding : findings) {
        out << finding.toString() << "\n";
    }
    const auto isError = [](const Finding &finding) {
        return finding.kind == Finding::Kind::kError;
    };
    const auto errors = std::count_if(findings.cbegin(), findings.cend(), isError);
    out << (errors == 0   ? QStringLiteral("no findings\n")
            : errors == 1 ? QStringLiteral("1 finding\n")
                          : QStringLiteral("%1 findings\n").arg(errors));
    return errors == 0 ? kClean : kFindings;
}
