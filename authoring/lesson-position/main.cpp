#include "lesson/description/DescriptionSet.h"
#include "lesson/description/Spot.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QTextStream>

namespace {

enum ExitStatus { kDone = 0, kUsage = 2 };

/// What is printed, or why there is nothing to print.
struct Answer
{
    QString text;
    QString problem;
};

/// @p words: a window key, and if it is not only its controls that are asked for, one of them and a place in
/// it. @p folder names the descriptions in a problem.
Answer answerTo(QStringList words, const DescriptionSet &windows, const QString &folder)
{
    const QString key = words.takeFirst();
    if (!windows.contains(key)) {
        QStringList keys = windows.keys();
        keys.removeAll(QString()); // the screen
        return {{},
                QStringLiteral("%1 describes no window \"%2\", only %3")
                    .arg(folder, key, keys.join(QLatin1Char(' ')))};
    }
    const QVector<ControlDescription> controls = windows.controlsIn(key);
    Answer answer;
    if (words.isEmpty()) {
        for (const ControlDescription &control : controls) {
            answer.text += control.name + QLatin1Char('\n');
        }
        return answer;
    }
    const Spot spot(controls, words);
    answer.problem = spot.problem();
    if (answer.problem.isEmpty()) {
        answer.text =
            QStringLiteral("\"x\":%1,\n\"y\":%2,\n").arg(spot.position().x()).arg(spot.position().y());
    }
    return answer;
}

/// Answers each line of the standard input, which has the words of one question, in one line; a problem
/// stands behind "! ".
void answerLines(const DescriptionSet &windows, const QString &folder, QTextStream *out)
{
    QTextStream in(stdin);
    for (QString line = in.readLine(); !line.isNull(); line = in.readLine()) {
        const Answer answer = answerTo(line.split(QLatin1Char(' ')), windows, folder);
        *out << (answer.problem.isEmpty() ? answer.text.simplified() : QStringLiteral("! ") + answer.problem)
             << "\n";
    }
}

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
    const QCommandLineOption lines(QStringLiteral("lines"),
                                   QStringLiteral("read from the standard input, and answer each line"));
    parser.addOptions({tree, lines, help, version});
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

    const QStringList words = parser.positionalArguments();
    if (words.isEmpty() != parser.isSet(lines)) {
        return complain(QStringLiteral("name a window, or give --lines; --help shows how"));
    }
    const QString folder = QDir(parser.value(tree)).filePath(QStringLiteral("practice/descriptions"));
    QStringList errors;
    const DescriptionSet windows = DescriptionSet::read(folder, nullptr, &errors);
    if (!errors.isEmpty()) {
        return complain(errors.constFirst());
    }
    if (parser.isSet(lines)) {
        answerLines(windows, folder, &out);
        return kDone;
    }
    const Answer answer = answerTo(words, windows, folder);
    if (!answer.problem.isEmpty()) {
        return complain(answer.problem);
    }
    out << answer.text;
    return kDone;
}
