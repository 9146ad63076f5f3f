// How fast patches are applied, as ratios within one run:
//  - applying a patch of long copies against memcpy of the result: at least a third as fast;
//  - applying a change to a large file against the xdelta3 program applying the same change: ahead of it.
//    Both sides are a process of its own that reads base and patch from files in the page cache, ours this
//    program started again with --apply. Once both drop the result into the null device, once both write it
//    to a file;
//  - time against length: twice the bytes take about twice the time.
// Prints the ratios. The exit status is 1 when one is beyond its bound, 0 otherwise.

#include "make-patch/PatchMaker.h"
#include "tool/DataSupport.h"
#include "tool/StringPatch.h"

#include <QCoreApplication>
#include <QFile>
#include <QLoggingCategory>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t kMegabyte = std::size_t(1) << 20;
constexpr std::size_t kLargeFile = 64 * kMegabyte;
constexpr int kRounds = 7;

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

/// How many times as long @p work takes as @p other. They take turns, so that what else the machine does
/// slows both, and the quickest run of each counts.
template<typename Work, typename Other>
double timesAsLong(Work work, Other other)
{
    const auto seconds = [](auto &run) {
        const auto start = std::chrono::steady_clock::now();
        run();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    double quickest = seconds(work);
    double otherQuickest = seconds(other);
    for (int round = 1; round < kRounds; ++round) {
        quickest = std::min(quickest, seconds(work));
        otherQuickest = std::min(otherQuickest, seconds(other));
    }
    return quickest / otherQuickest;
}

std::string noise(std::size_t size, quint32 seed)
{
    QRandomGenerator random(seed);
    std::string bytes(size, '\0');
    for (char &byte : bytes) {
        byte = char(random.bounded(256U));
    }
    return bytes;
}

/// @p base with a few words changed, so that a patch for it is nearly all long copies.
std::string edited(std::string base)
{
    for (std::size_t at = kMegabyte / 2; at < base.size(); at += 4 * kMegabyte) {
        base.replace(at, 5, "village");
    }
    return base;
}

QByteArray patchFor(const std::string &base, const std::string &target)
{
    QByteArray patch;
    QString error;
    if (!PatchMaker::makePatch(base, target, patch, error)) {
        qFatal("%s", qPrintable(error));
    }
    return patch;
}

std::string applied(const std::string &base, const QByteArray &patch)
{
    std::string result;
    if (!StringPatch::ApplyStringPatch(base, patch, result)) {
        qFatal("the patch does not apply");
    }
    return result;
}

/// Prints one ratio with its bound, and says whether it is within.
bool report(const QString &what, double ratio, double bound)
{
    const bool isWithin = ratio >= bound;
    out() << QStringLiteral("%1: %2 (at least %3) %4\n")
                 .arg(what, QString::number(ratio, 'f', 2), QString::number(bound, 'f', 2),
                      isWithin ? QStringLiteral("ok") : QStringLiteral("TOO SLOW"));
    out().flush();
    return isWithin;
}

/// Applies @p patch and drops the result.
void apply(const std::string &base, const QByteArray &patch)
{
    const std::string result = applied(base, patch);
    volatile char kept = result[result.size() / 2];
    (void)kept;
}

/// How fast a patch is applied, memcpy of its result being 1. Both write to memory that is new each time.
double speedAgainstMemcpy(const std::string &base, const std::string &target)
{
    const QByteArray patch = patchFor(base, target);
    const auto copy = [&target] {
        const std::unique_ptr<char[]> copied(new char[target.size()]);
        std::memcpy(copied.get(), target.data(), target.size());
        volatile char kept = copied[target.size() / 2];
        (void)kept;
    };
    return timesAsLong(copy, [&] { apply(base, patch); });
}

bool againstMemcpy()
{
    constexpr double kBound = 1.0 / 3;
    bool isWithin = true;
    for (const std::size_t size : {kMegabyte, 16 * kMegabyte, kLargeFile}) {
        const std::string base = noise(size, 1);
        isWithin &= report(QStringLiteral("%1 MB of long copies, speed against memcpy").arg(size / kMegabyte),
                           speedAgainstMemcpy(base, edited(base)), kBound);
    }
    const std::string phrase = "do re mi fa so la ti " + noise(40, 2);
    std::string target;
    while (target.size() < 16 * kMegabyte) {
        target += phrase;
    }
    return report(QStringLiteral("16 MB of overlapping copies, speed against memcpy"),
                  speedAgainstMemcpy(std::string(), target), kBound) &&
           isWithin;
}

bool growth()
{
    const std::string half = noise(kLargeFile / 2, 3);
    const std::string whole = noise(kLargeFile, 3);
    const QByteArray halfPatch = patchFor(half, edited(half));
    const QByteArray wholePatch = patchFor(whole, edited(whole));
    const double ratio = timesAsLong([&] { apply(half, halfPatch); }, [&] { apply(whole, wholePatch); });
    return report(QStringLiteral("32 MB against 64 MB, speed per byte"), 2 * ratio, 0.6);
}

/// Our side of the comparison of programs: @p patch applied to @p base, into @p output.
int applyFiles(const QString &base, const QString &patch, const QString &output)
{
    QFile baseFile(base);
    const uchar *bytes = baseFile.open(QIODevice::ReadOnly) ? baseFile.map(0, baseFile.size()) : nullptr;
    QByteArray operations;
    std::string result;
    const bool isApplied =
        bytes != nullptr && DataSupport::readFile(patch, operations) &&
        StringPatch::ApplyStringPatch(
            std::string_view(reinterpret_cast<const char *>(bytes), std::size_t(baseFile.size())), operations,
            result) &&
        DataSupport::writeFile(output, QByteArray::fromRawData(result.data(), int(result.size())));
    return isApplied ? 0 : 1;
}

void write(const QString &file, const QByteArray &bytes)
{
    if (!DataSupport::writeFile(file, bytes)) {
        qFatal("cannot write %s", qPrintable(file));
    }
}

QByteArray read(const QString &file)
{
    QByteArray bytes;
    if (!DataSupport::readFile(file, bytes)) {
        qFatal("cannot read %s", qPrintable(file));
    }
    return bytes;
}

void run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        qFatal("%s failed", qPrintable(program));
    }
}

bool againstXdelta()
{
    const QString xdelta = QStandardPaths::findExecutable(QStringLiteral("xdelta3"));
    if (xdelta.isEmpty()) {
        out() << QStringLiteral("xdelta3 is not installed (Debian package xdelta3): not compared with it\n");
        return true;
    }
    QTemporaryDir directory;
    const auto path = [&directory](const char *name) {
        return directory.filePath(QString::fromLatin1(name));
    };
    const std::string base = noise(kLargeFile, 4);
    const std::string target = edited(base);
    write(path("base"), QByteArray::fromStdString(base));
    write(path("target"), QByteArray::fromStdString(target));
    write(path("patch"), patchFor(base, target));
    run(xdelta, {QStringLiteral("-e"), QStringLiteral("-f"), QStringLiteral("-s"), path("base"),
                 path("target"), path("delta")});

    const QStringList decode{QStringLiteral("-d"), QStringLiteral("-f"), QStringLiteral("-s"), path("base")};
    const auto theirs = [&](const QStringList &delta) {
        run(xdelta, decode + delta);
    };
    const auto ours = [&](const QString &output) {
        run(QCoreApplication::applicationFilePath(),
            {QStringLiteral("--apply"), path("base"), path("patch"), output});
    };
    const double dropping = timesAsLong(
        [&] {
            theirs({QStringLiteral("-c"), path("delta")});
        },
        [&] { ours(QProcess::nullDevice()); });
    const double writing = timesAsLong(
        [&] {
            theirs({path("delta"), path("theirs")});
        },
        [&] { ours(path("ours")); });
    if (read(path("theirs")).toStdString() != target || read(path("ours")).toStdString() != target) {
        qFatal("the results differ");
    }
    const bool isAhead =
        report(QStringLiteral("64 MB read and applied, speed against xdelta3"), dropping, 1.0);
    return report(QStringLiteral("64 MB from files to a file, speed against xdelta3"), writing, 1.0) &&
           isAhead;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 5 && arguments.at(1) == QLatin1String("--apply")) {
        return applyFiles(arguments.at(2), arguments.at(3), arguments.at(4));
    }

    const bool memcpyIsNear = againstMemcpy();
    const bool growthIsLinear = growth();
    const bool xdeltaIsBehind = againstXdelta();
    return memcpyIsNear && growthIsLinear && xdeltaIsBehind ? 0 : 1;
}
