#include "make-patch/PatchChain.h"
#include "make-patch/PatchFiles.h"
#include "make-patch/PatchMaker.h"
#include "make-patch/ProgressLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QTextStream>

#include <cstdio>

namespace {

constexpr int kFailed = 1;
constexpr int kBadUsage = 2;

int fail(int status, const QString &error)
{
    QTextStream(stderr) << "make-patch: " << error << '\n';
    return status;
}

int badUsage(const QString &error)
{
    return fail(kBadUsage, error + QStringLiteral("\nTry 'make-patch --help'."));
}

bool isSameFile(const QString &left, const QString &right)
{
    return QFileInfo::exists(left) && QFileInfo(left) == QFileInfo(right);
}

int makeOne(const QString &basePath, const QString &targetPath, const QString &patchPath)
{
    if (isSameFile(patchPath, basePath) || isSameFile(patchPath, targetPath)) {
        return badUsage(QStringLiteral("%1 would be overwritten with its own patch").arg(patchPath));
    }
    QString error;
    std::string base;
    std::string target;
    QByteArray patch;
    ProgressLine line;
    const auto progress = [&line, &targetPath](std::size_t done, std::size_t size) {
        line.show(targetPath, done, size);
    };
    const bool isMade = PatchFiles::read(basePath, base, error) &&
                        PatchFiles::read(targetPath, target, error) &&
                        PatchMaker::makePatch(base, target, patch, error, progress) &&
                        PatchFiles::write(patchPath, patch, error);
    line.clear();
    return isMade ? 0 : fail(kFailed, error);
}

int makeChain(const QString &stepsDirectory, const QString &patchDirectory, const QStringList &mayVanish)
{
    PatchChain chain(stepsDirectory, patchDirectory, mayVanish);
    QString error;
    ProgressLine line;
    const bool isMade = chain.make(error, [&line](const QString &path, std::size_t done, std::size_t size) {
        line.show(path, done, size);
    });
    line.clear();
    for (const QString &warning : chain.warnings()) {
        QTextStream(stderr) << "make-patch: warning: " << warning << '\n';
    }
    if (!isMade) {
        return fail(kFailed, error);
    }
    QTextStream(stdout) << QStringLiteral("%1 patches in %2 steps, %3 bytes, in %4\n")
                               .arg(chain.patchCount())
                               .arg(chain.stepCount())
                               .arg(chain.patchBytes())
                               .arg(patchDirectory);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Makes the binary patches that preset data is stored in.\n\n"
        "  make-patch BASE TARGET -o FILE\n"
        "      one patch that turns BASE into TARGET\n"
        "  make-patch --chain STEPS_DIR -o PATCH_DIR\n"
        "      the chain: STEPS_DIR/stepN/data/NAME.json becomes\n"
        "      PATCH_DIR/stepN/data/NAME.json-patch; PATCH_DIR is replaced whole\n\n"
        "Every patch is applied and compared before it is written. The exit status is 0 when all\n"
        "was written, 1 when nothing was, 2 when the command line is wrong."));
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")},
                                    QStringLiteral("Where the patch or the chain goes."),
                                    QStringLiteral("path"));
    const QCommandLineOption chain(QStringLiteral("chain"),
                                   QStringLiteral("Make the chain of the steps in this directory."),
                                   QStringLiteral("STEPS_DIR"));
    const QCommandLineOption allowVanish(
        QStringLiteral("allow-vanish"),
        QStringLiteral(
            "This data file may be missing in a step though the one before has it. May be repeated."),
        QStringLiteral("NAME.json"));
    parser.addOptions({output, chain, allowVanish});
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Shows this."));
    const QCommandLineOption version(QStringLiteral("version"), QStringLiteral("Shows the version."));
    parser.addOptions({help, version});
    parser.addPositionalArgument(QStringLiteral("BASE"),
                                 QStringLiteral("The text that the patch is applied to."),
                                 QStringLiteral("[BASE"));
    parser.addPositionalArgument(QStringLiteral("TARGET"), QStringLiteral("The text that comes out."),
                                 QStringLiteral("TARGET]"));

    if (!parser.parse(QCoreApplication::arguments())) {
        return badUsage(parser.errorText());
    }
    if (parser.isSet(help)) {
        QTextStream(stdout) << parser.helpText();
        return 0;
    }
    if (parser.isSet(version)) {
        QTextStream(stdout) << "make-patch " TUTORIAL_VERSION "\n";
        return 0;
    }
    const QStringList arguments = parser.positionalArguments();
    if (parser.values(output).size() != 1 || parser.value(output).isEmpty()) {
        return badUsage(QStringLiteral("say once with -o where the result goes"));
    }
    if (parser.isSet(chain)) {
        if (!arguments.isEmpty() || parser.values(chain).size() != 1) {
            return badUsage(QStringLiteral("--chain takes one directory and no other files"));
        }
        return makeChain(parser.value(chain), parser.value(output), parser.values(allowVanish));
    }
    if (parser.isSet(allowVanish)) {
        return badUsage(QStringLiteral("--allow-vanish goes with --chain"));
    }
    if (arguments.size() != 2) {
        return badUsage(QStringLiteral("name two files, BASE and TARGET, or --chain and a directory"));
    }
    return makeOne(arguments.at(0), arguments.at(1), parser.value(output));
}
