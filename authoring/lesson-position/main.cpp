#include "lesson/description/DescriptionSet.h"
#include "lesson/description/Spot.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QTextStream>

namespace {

enum ExitStatus { kDone = 0, kUsage = 2 };

} // namespace

int main(int argc, char *argv[])
{
    QLoggingCategory::setFilterRules(QStringLiteral("default=false")); // the answer alone is of interest
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Prints x and y of a step that points at a control.\n\n"
                       "  lesson-position MainWindow                    the window's controls\n"
                       "  lesson-position MainWindow fileNew            the middle of a control\n"
                       "  lesson-position MapEditTreeBox maps row 3     a row of a list, from 0\n"
                       "  lesson-position MainWindow palette tab 1      a tab, from 0\n"
                       "  lesson-position MainWindow map cell 12 8      column and row of the map, from 0\n"
                       "  lesson-position Menu MapPopup/newMap          an entry of a context menu"));
    const QCommandLineOption tree(QStringLiteral("tree"),
                                  QStringLiteral("the source tree, the current directory by default"),
                                  QStringLiteral("directory"), QStringLiteral("."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("show this"));
    const QCommandLineOption version(QStringLiteral("version"), QStringLiteral("show the version"));
    parser.addOptions({tree, help, version});
    parser.addPositionalArgument(QStringLiteral("window"), QStringLiteral("a window key"));
    parser.addPositionalArgument(QStringLiteral("control"),
                                 QStringLiteral("a control's name, and a place in it"),
                                 QStringLiteral("[control [place]]"));
    const auto complain = [&](const QString &text) {
        err << "lesson-position: " << text << "\n";
        return kUsage;
    };
    if (!parser.parse(QCoreApplication::arguments())) {
        return complain(parser.errorText());
    }
    if (parser.isSet(help)) {
        out << parser.helpText();
        return kDone;
    }
    if (parser.isSet(version)) {
        out << "lesson-position " TUTORIAL_VERSION "\n";
        return kDone;
    }

    QStringList words = parser.positionalArguments();
    if (words.isEmpty()) {
        return complain(QStringLiteral("name a window; --help shows how"));
    }
    const QString folder = QDir(parser.value(tree)).filePath(QStringLiteral("practice/descriptions"));
    QStringList errors;
    const DescriptionSet windows = DescriptionSet::read(folder, nullptr, &errors);
    if (!errors.isEmpty()) {
        return complain(errors.constFirst());
    }
    const QString key = words.takeFirst();
    if (!windows.contains(key)) {
        QStringList keys = windows.keys();
        keys.removeAll(QString()); // the screen
        return complain(QStringLiteral("%1 describes no window \"%2\", only %3")
                            .arg(folder, key, keys.join(QLatin1Char(' '))));
    }
    const QVector<ControlDescription> controls = windows.controlsIn(key);
    if (words.isEmpty()) {
        for (const ControlDescription &control : controls) {
            out << control.name << "\n";
        }
        return kDone;
    }
    const Spot spot(controls, words);
    if (!spot.problem().isEmpty()) {
        return complain(spot.problem());
    }
    out << "\"x\":" << spot.position().x() << ",\n\"y\":" << spot.position().y() << ",\n";
    return kDone;
}
