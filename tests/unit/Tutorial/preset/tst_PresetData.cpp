#include "PatchBytes.h"
#include "ProgramDirectory.h"
#include "Unprivileged.h"

#include <limits>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The most memory that this process has ever had at once.
qint64 peakMemoryKiB()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

/// Which steps and files there are, how their patches are replayed, and what ends a request.
class tst_PresetData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepsAreSortedByNumber();
    void stepsOfAMissingRoot();
    void badStepNames_data();
    void badStepNames();
    void missingStepIsReported_data();
    void missingStepIsReported();
    void secondRootIsUsedWithoutTheFirst();
    void firstRootHidesTheSecond();
    void chainIsReplayedUpToTheStep();
    void fileWithoutAPatchIsGone();
    void fileOfALaterStepStartsFromNothing();
    void fileThatComesBackStartsFromNothing();
    void laterStepsAreNotRead();
    void hiddenFilesBelongToTheStep();
    void badPatchEndsTheRequest();
    void oversizedPatchEndsTheRequest();
    void moreThanAnAnswerHoldsEndsTheRequest();
    void hugeTargetTakesNoMemory();
    void badTagOfAHugePatchIsReported();
    void unreadableFileEndsTheRequest();
    void fileThatMayNotBeReadEndsTheRequest();
    void pipeEndsTheRequest();
    void badPatchNameEndsTheRequestBehindThePatches();
    void nothingIsSentForNoFiles();
    void plainFileWithTheNameOfAStep();
    void rootMayBeALink();
    void stepWithoutDataForgetsEarlierFiles();
};

void tst_PresetData::stepsAreSortedByNumber()
{
    const ProgramDirectory program;
    for (const char *name :
         {"step10", "step2", "step9", "step1", "step100", "step", "stepX", "step1x", "xstep1", "Step3"}) {
        program.addStep(QString::fromLatin1(name));
    }
    QFile file(program.root() + QStringLiteral("/step5"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(listPresetSteps(program.root()), (QStringList{step(1), step(2), step(9), step(10), step(100)}));
}

void tst_PresetData::stepsOfAMissingRoot()
{
    QCOMPARE(listPresetSteps(QStringLiteral("/no/such/directory")), QStringList());
}

void tst_PresetData::badStepNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("letters") << QStringLiteral("stepX");
    QTest::newRow("empty") << QString();
    QTest::newRow("no number") << QStringLiteral("step");
    QTest::newRow("more behind") << QStringLiteral("step1x");
    QTest::newRow("more before") << QStringLiteral("xstep1");
    QTest::newRow("path") << QStringLiteral("step1/../step1");
    QTest::newRow("negative") << QStringLiteral("step-1");
    QTest::newRow("capital") << QStringLiteral("Step1");
    QTest::newRow("digit beyond Latin") << QStringLiteral("step\uff11");
    QTest::newRow("list") << QStringLiteral("step1 step1");
}

void tst_PresetData::badStepNames()
{
    QFETCH(QString, name);
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("Items.json-patch"), PatchBytes::insertion("[]"));
    LogCapture log;
    const QString reply = program.reply(name);
    QVERIFY(reply.isNull());
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().constFirst().contains(source()));
    QVERIFY(
        log.warnings().constFirst().endsWith(QStringLiteral("Failed to get stepNumber \"%1\"").arg(name)));
}

void tst_PresetData::missingStepIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("logged");
    QTest::newRow("another number") << step(2) << step(2);
    QTest::newRow("same number") << QStringLiteral("step01") << QStringLiteral("step01");
    QTest::newRow("no number that there is")
        << QString(QStringLiteral("step") + QString(40, QLatin1Char('9')))
        << QString(QStringLiteral("step") + QString(40, QLatin1Char('9')));
    // The end of a line counts as the end of the name.
    QTest::newRow("line feed") << QStringLiteral("step1\n") << QStringLiteral("step1\\n");
}

void tst_PresetData::missingStepIsReported()
{
    QFETCH(QString, name);
    QFETCH(QString, logged);
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("Items.json-patch"), PatchBytes::insertion("[]"));
    LogCapture log;
    QVERIFY(program.reply(name).isNull());
    QCOMPARE(warningTexts(log),
             QStringList{
                 source() +
                 QStringLiteral("1001 presetData not found \"%1/%2\" \"%2\"").arg(program.root(), logged)});
}

void tst_PresetData::secondRootIsUsedWithoutTheFirst()
{
    const ProgramDirectory program(QStringLiteral("tutorial-win/resource/patch"));
    program.addFile(step(1), QStringLiteral("Other.json-patch"), PatchBytes::insertion("[1]"));
    QCOMPARE(program.replyObject(step(1)).value(QStringLiteral("data/Other.json")).toString(),
             QStringLiteral("[1]"));
    LogCapture log;
    QVERIFY(program.reply(step(2)).isNull());
    QVERIFY(log.contains(QStringLiteral("1001 presetData not found \"%1/tutorial-win/resource/patch/step2\"")
                             .arg(program.path())));
}

void tst_PresetData::firstRootHidesTheSecond()
{
    const ProgramDirectory program(QStringLiteral("tutorial-win/resource/patch"));
    program.addFile(step(1), QStringLiteral("Other.json-patch"), PatchBytes::insertion("[1]"));
    QVERIFY(QDir().mkpath(program.path() + QStringLiteral("/resource/patch")));
    LogCapture log;
    QVERIFY(program.reply(step(1)).isNull());
    QVERIFY(log.contains(QStringLiteral("presetData not found")));
}

void tst_PresetData::chainIsReplayedUpToTheStep()
{
    const ProgramDirectory program;
    const QString name = QStringLiteral("Other.json-patch");
    program.addFile(step(1), name, PatchBytes::insertion("[\"one\"]"));
    QByteArray change = PatchBytes::header(13); // ["one","two"], from the base and new bytes
    change += QByteArray::fromHex("ff000005");
    change += QByteArray::fromHex("0006") + ",\"two\"]";
    program.addFile(step(2), name, change);
    program.addFile(step(10), name, PatchBytes::copy(13));
    const QString key = QStringLiteral("data/Other.json");
    QCOMPARE(program.replyObject(step(1)).value(key).toString(), QStringLiteral("[\"one\"]"));
    QCOMPARE(program.replyObject(step(2)).value(key).toString(), QStringLiteral("[\"one\",\"two\"]"));
    QCOMPARE(program.replyObject(step(10)).value(key).toString(), QStringLiteral("[\"one\",\"two\"]"));
}

void tst_PresetData::fileWithoutAPatchIsGone()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    program.addFile(step(1), QStringLiteral("B.json-patch"), PatchBytes::insertion("[2]"));
    program.addFile(step(2), QStringLiteral("B.json-patch"), PatchBytes::copy(3));
    QCOMPARE(program.replyObject(step(1)).keys(),
             (QStringList{QStringLiteral("data/A.json"), QStringLiteral("data/B.json")}));
    QCOMPARE(program.replyObject(step(2)).keys(), QStringList{QStringLiteral("data/B.json")});
}

void tst_PresetData::fileOfALaterStepStartsFromNothing()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    program.addFile(step(2), QStringLiteral("A.json-patch"), PatchBytes::copy(3));
    // The copy reads from what this patch wrote: with a base in front it would read the base.
    program.addFile(step(2), QStringLiteral("B.json-patch"),
                    PatchBytes::header(6) + QByteArray::fromHex("0001") + "12" +
                        QByteArray::fromHex("ff000003"));
    QCOMPARE(program.replyObject(step(2)).value(QStringLiteral("data/B.json")).toString(),
             QStringLiteral("121212"));
}

void tst_PresetData::fileThatComesBackStartsFromNothing()
{
    const ProgramDirectory program;
    const QString name = QStringLiteral("A.json-patch");
    program.addFile(step(1), name, PatchBytes::insertion("[7]"));
    program.addStep(step(2));
    program.addFile(step(3), name,
                    PatchBytes::header(6) + QByteArray::fromHex("0001") + "12" +
                        QByteArray::fromHex("ff000003"));
    QCOMPARE(program.replyObject(step(3)).value(QStringLiteral("data/A.json")).toString(),
             QStringLiteral("121212"));
}

void tst_PresetData::laterStepsAreNotRead()
{
    const ProgramDirectory program;
    const QString name = QStringLiteral("A.json-patch");
    program.addFile(step(1), name, PatchBytes::insertion("[1]"));
    program.addFile(step(2), name, PatchBytes::copy(3));
    program.addFile(step(10), name, QByteArray("\0\0\0\0\x02", 5));
    LogCapture log;
    QCOMPARE(program.replyObject(step(2)).value(QStringLiteral("data/A.json")).toString(),
             QStringLiteral("[1]"));
    QCOMPARE(log.warnings(), QStringList());
    QVERIFY(!log.contains(step(10)));
    QVERIFY(program.reply(step(10)).isNull());
}

void tst_PresetData::hiddenFilesBelongToTheStep()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral(".hidden-patch"), PatchBytes::insertion("[1]"));
    QVERIFY(QDir().mkpath(program.dataPath(step(1)) + QStringLiteral("/directory-patch")));
    QCOMPARE(program.replyObject(step(1)).keys(), QStringList{QStringLiteral("data/.hidden")});
}

void tst_PresetData::badPatchEndsTheRequest()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    program.addFile(step(2), QStringLiteral("A.json-patch"), QByteArray("\3\0\0\0\x02", 5));
    program.addFile(step(3), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    LogCapture log;
    QVERIFY(program.reply(step(3)).isNull());
    QCOMPARE(warningTexts(log),
             (QStringList{QStringLiteral("StringPatch::ApplyStringPatch 284 Invalid tag 2"),
                          source() + QStringLiteral("1033 Failed to ApplyStringPatch")}));
}

void tst_PresetData::oversizedPatchEndsTheRequest()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    program.addFile(step(2), QStringLiteral("A.json-patch"), QByteArray("\xff\xff\xff\xff", 4));
    LogCapture log;
    QVERIFY(program.reply(step(2)).isNull());
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().constFirst().contains(QStringLiteral("Failed to ApplyStringPatch")));
    QVERIFY(log.warnings().constFirst().contains(source()));
}

void tst_PresetData::moreThanAnAnswerHoldsEndsTheRequest()
{
    // A few bytes that ask for zeros: as many as an answer may hold, and one more.
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::header(kMostPresetBytes - 4));
    program.addFile(step(1), QStringLiteral("B.json-patch"), PatchBytes::header(4));
    program.addFile(step(2), QStringLiteral("A.json-patch"), PatchBytes::header(kMostPresetBytes - 4));
    program.addFile(step(2), QStringLiteral("B.json-patch"), PatchBytes::header(5));
    LogCapture log;
    QVERIFY(!program.reply(step(1)).isNull());
    QVERIFY(!log.contains(QStringLiteral("Too much data")));
    log.clear();
    QVERIFY(program.reply(step(2)).isNull());
    QCOMPARE(warningTexts(log),
             QStringList{
                 source() +
                 QStringLiteral("1040 Too much data for an answer \"%1\"").arg(program.dataPath(step(2)))});
}

void tst_PresetData::hugeTargetTakesNoMemory()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"),
                    PatchBytes::header(std::numeric_limits<qint32>::max()));
    LogCapture log;
    const qint64 before = peakMemoryKiB();
    QVERIFY(program.reply(step(1)).isNull());
    QVERIFY2(peakMemoryKiB() - before < 256 * 1024, qPrintable(QString::number(peakMemoryKiB() - before)));
    QCOMPARE(warningTexts(log),
             QStringList{
                 source() +
                 QStringLiteral("1040 Too much data for an answer \"%1\"").arg(program.dataPath(step(1)))});
}

void tst_PresetData::badTagOfAHugePatchIsReported()
{
    const ProgramDirectory program;
    const QByteArray tooMuch = PatchBytes::header(std::numeric_limits<qint32>::max());
    program.addFile(step(1), QStringLiteral("A.json-patch"), tooMuch + QByteArray("\0\0A\2", 4));
    LogCapture log;
    QVERIFY(program.reply(step(1)).isNull());
    QCOMPARE(warningTexts(log),
             (QStringList{QStringLiteral("StringPatch::ApplyStringPatch 284 Invalid tag 2"),
                          source() + QStringLiteral("1033 Failed to ApplyStringPatch")}));
}

void tst_PresetData::unreadableFileEndsTheRequest()
{
    const ProgramDirectory program;
    // What the kernel shows as a file of a page ends before that.
    const QString target = QStringLiteral("/sys/devices/system/cpu/online");
    QVERIFY2(QFileInfo(target).size() > 100, "this test needs a file that is shorter than it says");
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    program.addStep(step(2));
    const QString path = program.dataPath(step(2)) + QStringLiteral("/A.json-patch");
    QVERIFY(QFile::link(target, path));
    LogCapture log;
    QVERIFY(program.reply(step(2)).isNull());
    QCOMPARE(log.warnings().size(), 2);
    QVERIFY(log.warnings().constLast().contains(source()));
    QVERIFY(log.warnings().constLast().endsWith(QStringLiteral("Failed to read \"%1\"").arg(path)));
}

void tst_PresetData::fileThatMayNotBeReadEndsTheRequest()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    program.addFile(step(2), QStringLiteral("A.json-patch"), PatchBytes::copy(3));
    QCOMPARE(chmod(qPrintable(program.path()), 0755), 0);
    const QString path = program.dataPath(step(2)) + QStringLiteral("/A.json-patch");
    QCOMPARE(chmod(qPrintable(path), 0), 0);
    const Unprivileged nobody;
    QVERIFY(!program.reply(step(1)).isNull());
    LogCapture log;
    QVERIFY(program.reply(step(2)).isNull());
    QCOMPARE(warningTexts(log),
             (QStringList{QStringLiteral("DataSupport::readFile 133 Failed to open \"%1\"").arg(path),
                          source() + QStringLiteral("1024 Failed to read \"%1\"").arg(path)}));
}

void tst_PresetData::pipeEndsTheRequest()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    const QString pipe = program.path() + QStringLiteral("/pipe");
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    // With both ends open here nobody waits, whatever the code under test does.
    const int ends = open(qPrintable(pipe), O_RDWR | O_CLOEXEC);
    QVERIFY(ends >= 0);
    const QString path = program.dataPath(step(1)) + QStringLiteral("/B.json-patch");
    QVERIFY(QFile::link(pipe, path));
    LogCapture log;
    QVERIFY(program.reply(step(1)).isNull());
    QVERIFY(log.contains(QStringLiteral("Failed to read \"%1\"").arg(path)));
    close(ends);
}

void tst_PresetData::badPatchNameEndsTheRequestBehindThePatches()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    program.addFile(step(1), QStringLiteral("A.json"), PatchBytes::insertion("[2]"));
    LogCapture log;
    QVERIFY(program.reply(step(1)).isNull());
    QCOMPARE(log.warnings().size(), 1);
    QVERIFY(log.warnings().constFirst().contains(source()));
    QVERIFY(log.warnings().constFirst().endsWith(QStringLiteral("Bad patch name \"A.json\"")));
    // Names are looked at behind the last patch: a patch that fails comes first.
    program.addFile(step(1), QStringLiteral("B.json"), QByteArray("\0\0\0\0\x02", 5));
    log.clear();
    QVERIFY(program.reply(step(1)).isNull());
    QVERIFY(log.contains(QStringLiteral("1033 Failed to ApplyStringPatch")));
    QVERIFY(!log.contains(QStringLiteral("Bad patch name")));
}

void tst_PresetData::nothingIsSentForNoFiles()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    program.addStep(step(2));
    LogCapture log;
    QVERIFY(program.reply(step(2)).isNull());
    QCOMPARE(log.warnings(), QStringList());
}

void tst_PresetData::plainFileWithTheNameOfAStep()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    QFile file(program.root() + QStringLiteral("/step2"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    LogCapture log;
    QVERIFY(program.reply(step(2)).isNull());
    QCOMPARE(log.lines(), QStringList());
}

void tst_PresetData::rootMayBeALink()
{
    const ProgramDirectory elsewhere(QStringLiteral("patches"));
    elsewhere.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    const ProgramDirectory program;
    QVERIFY(QDir().mkpath(program.path() + QStringLiteral("/resource")));
    QVERIFY(QFile::link(elsewhere.root(), program.root()));
    QCOMPARE(program.replyObject(step(1)).value(QStringLiteral("data/A.json")).toString(),
             QStringLiteral("[1]"));
    // A link to nowhere is no root.
    QVERIFY(QFile::remove(program.root()));
    QVERIFY(QFile::link(elsewhere.path() + QStringLiteral("/nowhere"), program.root()));
    LogCapture log;
    QVERIFY(program.reply(step(1)).isNull());
    QVERIFY(log.contains(QStringLiteral("tutorial-win/resource/patch/step1")));
}

void tst_PresetData::stepWithoutDataForgetsEarlierFiles()
{
    const ProgramDirectory program;
    program.addFile(step(1), QStringLiteral("A.json-patch"), PatchBytes::insertion("[1]"));
    QVERIFY(QDir().mkpath(program.root() + QStringLiteral("/step2")));
    program.addFile(step(3), QStringLiteral("B.json-patch"), PatchBytes::insertion("[3]"));
    LogCapture log;
    QVERIFY(program.reply(step(2)).isNull());
    QCOMPARE(program.replyObject(step(3)).keys(), QStringList{QStringLiteral("data/B.json")});
    QCOMPARE(log.warnings(), QStringList());
}

QTEST_GUILESS_MAIN(tst_PresetData)
#include "tst_PresetData.moc"
