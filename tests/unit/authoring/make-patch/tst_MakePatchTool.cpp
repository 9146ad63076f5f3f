#include "Scratch.h"

#include <QObject>
#include <QProcess>
#include <QScopedPointer>
#include <QTest>

#include <utility>

namespace {

struct Run
{
    int status; ///< -1 after a crash.
    QString output;
    QString errors;
};

} // namespace

class tst_MakePatchTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void makesOnePatch();
    void makesAChain();
    void allowsFilesToVanish();
    void badUsageIsStatusTwo_data();
    void badUsageIsStatusTwo();
    void failureIsStatusOneAndWritesNothing_data();
    void failureIsStatusOneAndWritesNothing();
    void writeThatFailsLeavesNothing_data();
    void writeThatFailsLeavesNothing();
    void diskThatFillsUpIsNamed();
    void deviceIsNotReplaced();
    void inputIsNotOverwritten();
    void helpNamesBothForms();
    void warningIsNoFailure();
    void progressIsShownInATerminalOnly();

private:
    /// Runs the tool in the scratch directory; arguments are separated by blanks.
    [[nodiscard]] Run run(const char *arguments) const
    {
        return runProgram(QStringLiteral(MAKE_PATCH), QString::fromUtf8(arguments).split(QLatin1Char(' ')));
    }
    [[nodiscard]] Run runProgram(const QString &program, const QStringList &arguments) const
    {
        QProcess process;
        process.setWorkingDirectory(m_scratch->path());
        process.start(program, arguments);
        if (!process.waitForFinished()) {
            qFatal("make-patch does not end");
        }
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QScopedPointer<Scratch> m_scratch;
};

void tst_MakePatchTool::init()
{
    m_scratch.reset(new Scratch);
    m_scratch->put("base", "0123456789");
    m_scratch->put("target", "0123456789!");
    m_scratch->put("file", "[]");
    m_scratch->put("steps/step1/data/A.json", "[]");
    m_scratch->put("steps/step1/data/B.json", "[]");
    m_scratch->put("steps/step2/data/A.json", "[1]");
}

void tst_MakePatchTool::makesOnePatch()
{
    for (const char *arguments : {"base target -o out", "--output out base target"}) {
        m_scratch->put("out", "an old patch that is longer than the new one");
        const Run result = run(arguments);
        QCOMPARE(result.errors, QString());
        QCOMPARE(result.output, QString());
        QCOMPARE(result.status, 0);
        QCOMPARE(m_scratch->get("out"), QByteArray("\x0b\0\0\0\xff\0\0\x9\0\0!", 11));
    }
}

void tst_MakePatchTool::makesAChain()
{
    m_scratch->put("steps/step2/data/B.json", "[]");
    const Run result = run("--chain steps -o chain");
    QCOMPARE(result.errors, QString());
    QCOMPARE(result.status, 0);
    // Three inserts of two bytes and one of three, each behind two bytes of its own and a header of four.
    QCOMPARE(result.output, QStringLiteral("4 patches in 2 steps, 33 bytes, in chain\n"));
    QCOMPARE(m_scratch->get("chain/step2/data/A.json-patch"), QByteArray("\3\0\0\0\0\2[1]", 9));
}

void tst_MakePatchTool::allowsFilesToVanish()
{
    const Run refused = run("--chain steps -o chain");
    QCOMPARE(refused.status, 1);
    QVERIFY2(refused.errors.contains(QStringLiteral("B.json")), qPrintable(refused.errors));
    const Run allowed = run("--chain steps -o chain --allow-vanish B.json");
    QCOMPARE(allowed.errors, QString());
    QCOMPARE(allowed.status, 0);
    QVERIFY(m_scratch->has("chain/step1/data/B.json-patch"));
    QVERIFY(!m_scratch->has("chain/step2/data/B.json-patch"));
}

void tst_MakePatchTool::badUsageIsStatusTwo_data()
{
    QTest::addColumn<QByteArray>("arguments");
    for (const char *arguments :
         {"-o out", "base target", "base -o out", "base target file -o out", "base target -o",
          "base target -o out -o other", "base target --output=", "base target -o out --allow-vanish A.json",
          "--chain steps", "--chain steps --chain steps -o out", "--chain steps base -o out",
          "--unknown base target -o out"}) {
        QTest::newRow(arguments) << QByteArray(arguments);
    }
}

void tst_MakePatchTool::badUsageIsStatusTwo()
{
    QFETCH(QByteArray, arguments);
    const QStringList before = m_scratch->entries();
    const Run result = run(arguments.constData());
    QCOMPARE(result.status, 2);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.startsWith(QStringLiteral("make-patch: ")) &&
                 result.errors.endsWith(QStringLiteral("\nTry 'make-patch --help'.\n")),
             qPrintable(result.errors));
    QCOMPARE(m_scratch->entries(), before);
}

void tst_MakePatchTool::failureIsStatusOneAndWritesNothing_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *arguments, const char *error) {
        QTest::newRow(arguments) << QByteArray(arguments)
                                 << QStringLiteral("make-patch: ") + QString::fromLatin1(error);
    };
    row("missing target -o out", "cannot read missing: No such file or directory\n");
    row("base missing -o out", "cannot read missing: No such file or directory\n");
    row("base steps -o out", "cannot read steps: ");
    row("base target -o missing/out", "cannot write missing/out: ");
    row("base target -o steps", "cannot write steps: ");
    row("--chain missing -o out", "missing is not a directory\n");
    row("--chain file -o out", "file is not a directory\n");
    row("--chain steps -o file --allow-vanish B.json", "file is in the way: it is not a directory\n");
    row("--chain steps -o out --allow-vanish C.json", "steps/step2/data lacks ");
}

void tst_MakePatchTool::failureIsStatusOneAndWritesNothing()
{
    QFETCH(QByteArray, arguments);
    QFETCH(QString, error);
    const QStringList before = m_scratch->entries();
    const Run result = run(arguments.constData());
    QCOMPARE(result.status, 1);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.startsWith(error), qPrintable(result.errors));
    QCOMPARE(m_scratch->entries(), before);
    QCOMPARE(m_scratch->get("file"), QByteArray("[]"));
}

void tst_MakePatchTool::writeThatFailsLeavesNothing_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::newRow("one patch") << QStringLiteral("base target -o old");
    QTest::newRow("chain") << QStringLiteral("--chain steps -o chain --allow-vanish B.json");
}

void tst_MakePatchTool::writeThatFailsLeavesNothing()
{
    QFETCH(QString, arguments);
    m_scratch->put("old", "what was there");
    m_scratch->put("chain/step1/data/A.json-patch", "what was there");
    const QStringList before = m_scratch->entries();
    // No file may grow beyond nothing, as on a full disk; the signal that goes with it is ignored.
    const Run result = runProgram(
        QStringLiteral("/bin/sh"),
        {QStringLiteral("-c"),
         QStringLiteral("trap '' XFSZ; ulimit -f 0; exec %1 %2").arg(QStringLiteral(MAKE_PATCH), arguments)});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.startsWith(QStringLiteral("make-patch: cannot write ")),
             qPrintable(result.errors));
    QCOMPARE(m_scratch->entries(), before);
    QCOMPARE(m_scratch->get("old"), QByteArray("what was there"));
    QCOMPARE(m_scratch->get("chain/step1/data/A.json-patch"), QByteArray("what was there"));
}

void tst_MakePatchTool::diskThatFillsUpIsNamed()
{
    // More than any buffer holds, none of it twice, and room for the beginning.
    QByteArray noise;
    quint32 state = 1;
    while (noise.size() < 200000) {
        state = state * 1664525U + 1013904223U;
        noise.append(char(state >> 24U));
    }
    m_scratch->put("noise", noise);
    const QStringList before = m_scratch->entries();
    const Run result = runProgram(
        QStringLiteral("/bin/sh"),
        {QStringLiteral("-c"), QStringLiteral("trap '' XFSZ; ulimit -f 64; exec %1 base noise -o out")
                                   .arg(QStringLiteral(MAKE_PATCH))});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QStringLiteral("make-patch: cannot write out: File too large\n"));
    QCOMPARE(m_scratch->entries(), before);
}

void tst_MakePatchTool::deviceIsNotReplaced()
{
    QVERIFY(QProcess::execute(QStringLiteral("mkfifo"), {m_scratch->path("pipe")}) == 0);
    const Run result = run("base target -o pipe");
    QCOMPARE(result.status, 1);
    QCOMPARE(result.errors, QStringLiteral("make-patch: cannot write pipe: it is not a regular file\n"));
    QVERIFY(!QFileInfo(m_scratch->path("pipe")).isFile());
}

void tst_MakePatchTool::inputIsNotOverwritten()
{
    for (const char *arguments : {"base target -o ./base", "base target -o ./target"}) {
        const Run result = run(arguments);
        QCOMPARE(result.status, 2);
        QVERIFY2(result.errors.contains(QStringLiteral("would be overwritten")), qPrintable(result.errors));
    }
    QCOMPARE(m_scratch->get("base"), QByteArray("0123456789"));
    QCOMPARE(m_scratch->get("target"), QByteArray("0123456789!"));
}

void tst_MakePatchTool::helpNamesBothForms()
{
    const Run result = run("--help");
    QCOMPARE(result.status, 0);
    for (const char *part : {"make-patch BASE TARGET -o FILE", "make-patch --chain STEPS_DIR -o PATCH_DIR",
                             "make-patch [options] [BASE TARGET]\n", "--allow-vanish <NAME.json>"}) {
        QVERIFY2(result.output.contains(QString::fromLatin1(part)), qPrintable(result.output));
    }
}

void tst_MakePatchTool::warningIsNoFailure()
{
    m_scratch->put("more/step02/data/A.json", "[]");
    const Run result = run("--chain more -o chain");
    QVERIFY2(result.errors.startsWith(QStringLiteral("make-patch: warning: more/step02 ")),
             qPrintable(result.errors));
    QCOMPARE(result.status, 0);
    QVERIFY(m_scratch->has("chain/step02/data/A.json-patch"));
}

void tst_MakePatchTool::progressIsShownInATerminalOnly()
{
    m_scratch->put("large", QByteArray(2 << 20, ' ') + "[]");
    m_scratch->put("more/step1/data/A.json", m_scratch->get("large"));
    const Run piped = run("base large -o out");
    QCOMPARE(piped.errors, QString());
    QCOMPARE(piped.status, 0);
    for (const auto &[arguments, file] : {std::pair("base large -o out", "large"),
                                          std::pair("--chain more -o chain", "more/step1/data/A.json")}) {
        // A terminal of its own for the program.
        const Run shown =
            runProgram(QStringLiteral("script"),
                       {QStringLiteral("-qec"),
                        QStringLiteral("%1 %2").arg(QStringLiteral(MAKE_PATCH), QString::fromUtf8(arguments)),
                        QStringLiteral("/dev/null")});
        QCOMPARE(shown.status, 0);
        const QString erase = QStringLiteral("\r\033[K");
        const QString line = QStringLiteral("%1make-patch: %2: 0 %").arg(erase, QString::fromUtf8(file));
        QVERIFY2(shown.output.startsWith(line), qPrintable(shown.output));
        QVERIFY2(shown.output.lastIndexOf(erase) > 0, qPrintable(shown.output)); // and it goes away again
    }
}

QTEST_GUILESS_MAIN(tst_MakePatchTool)
#include "tst_MakePatchTool.moc"
