#include "FakeHost.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>
#include <vector>

#include <unistd.h>

namespace {

const QString kEndLine = QStringLiteral("TutorialManager::requestClose 1535");

} // namespace

/// What a signal does to the process, and what becomes of its temporary folder however it ends.
class tst_ProcessEnd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aSignalEndsItAsALostLinkDoes_data() { addSignals(); }
    void aSignalEndsItAsALostLinkDoes();
    void aSignalEndsItUnderAnEmptyKey_data() { addSignals(); }
    void aSignalEndsItUnderAnEmptyKey();
    void aSignalEndsItAlthoughNobodyListens();
    void manySignalsEndItOnce();
    void aSignalThatWasIgnoredStaysIgnored();
    void aLostLinkRemovesTheFolder();
    void aKilledProcessLeavesItsFolderToTheNextOne();
    void processesSideBySideKeepTheirFolders();

private:
    static void addSignals();
    static void sendSignal(FakeHost &host, int signal);
    /// Waits until the program has its folder, and whatever was made before it.
    static QString folderOf(FakeHost &host);
    /// Names of all that is in the folder of temporary files, sockets of the tests aside.
    [[nodiscard]] QStringList left() const;
    static bool startWithoutKey(FakeHost &host);

    std::unique_ptr<QTemporaryDir> m_temporary;
    QByteArray m_usual;
};

void tst_ProcessEnd::initTestCase()
{
    // Whoever runs the tests may have had them ignored, which the program inherits.
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        std::signal(signal, SIG_DFL);
    }
}

void tst_ProcessEnd::init()
{
    m_temporary = std::make_unique<QTemporaryDir>();
    m_usual = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(m_temporary->path()));
}

void tst_ProcessEnd::cleanup()
{
    m_usual.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", m_usual);
    m_temporary.reset();
}

void tst_ProcessEnd::addSignals()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void tst_ProcessEnd::sendSignal(FakeHost &host, int signal)
{
    QCOMPARE(::kill(static_cast<pid_t>(host.process().processId()), signal), 0);
}

QString tst_ProcessEnd::folderOf(FakeHost &host)
{
    static const QRegularExpression line(QStringLiteral("UndoRedo::UndoRedo 34 \"Tutorial\" \"([^\"]+)\""));
    FakeHost::waitFor([&host] { return line.match(host.log()).hasMatch(); });
    return line.match(host.log()).captured(1);
}

QStringList tst_ProcessEnd::left() const
{
    QStringList names =
        QDir(m_temporary->path()).entryList({QStringLiteral("Tutorial*")}, QDir::Dirs | QDir::NoDotAndDotDot);
    names.sort(); // by the numbers of the characters, as every list does
    return names;
}

bool tst_ProcessEnd::startWithoutKey(FakeHost &host)
{
    // The manager goes when the event loop runs for the first time.
    return host.startProgram({QString()}) &&
           host.waitForLog(QStringLiteral("TutorialManager::~TutorialManager 276"));
}

void tst_ProcessEnd::aSignalEndsItAsALostLinkDoes()
{
    QFETCH(int, signal);
    FakeHost host;
    QVERIFY(host.start());
    host.showStep();
    QVERIFY(host.sync());
    const QString folder = folderOf(host);
    QVERIFY2(QDir(folder).isAbsolute() && QDir(folder).exists(), qPrintable(folder));
    sendSignal(host, signal);
    QVERIFY(host.waitForEnd());
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
    QVERIFY2(host.log().trimmed().endsWith(kEndLine), qPrintable(host.log()));
    QCOMPARE(host.log().count(kEndLine), 1);
    QCOMPARE(left(), QStringList());
}

void tst_ProcessEnd::aSignalEndsItUnderAnEmptyKey()
{
    QFETCH(int, signal);
    FakeHost host;
    QVERIFY(startWithoutKey(host));
    QCOMPARE(left(), QStringList(QDir(folderOf(host)).dirName()));
    const QString log = host.log();
    sendSignal(host, signal);
    QVERIFY(host.waitForEnd());
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
    QCOMPARE(host.log(), log);
    QCOMPARE(left(), QStringList());
}

void tst_ProcessEnd::aSignalEndsItAlthoughNobodyListens()
{
    FakeHost host;
    QVERIFY(host.startProgram({QStringLiteral("nobody-%1").arg(QCoreApplication::applicationPid())}));
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::send 1396 \"alive\"")));
    sendSignal(host, SIGTERM);
    QVERIFY(host.waitForEnd());
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
    QCOMPARE(left(), QStringList());
}

void tst_ProcessEnd::manySignalsEndItOnce()
{
    FakeHost host;
    QVERIFY(host.start());
    QVERIFY(host.sync());
    // Stopped, it gets to see all of them at once.
    sendSignal(host, SIGSTOP);
    for (int i = 0; i < 100; ++i) {
        for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
            sendSignal(host, signal);
        }
    }
    sendSignal(host, SIGCONT);
    QVERIFY(host.waitForEnd());
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
    QCOMPARE(host.log().count(kEndLine), 1);
    QCOMPARE(left(), QStringList());
}

void tst_ProcessEnd::aSignalThatWasIgnoredStaysIgnored()
{
    FakeHost host;
    std::signal(SIGHUP, SIG_IGN); // for the program to find, as under nohup
    const bool started = startWithoutKey(host);
    std::signal(SIGHUP, SIG_DFL);
    QVERIFY(started);
    sendSignal(host, SIGHUP);
    QFile status(QStringLiteral("/proc/%1/status").arg(host.process().processId()));
    QVERIFY(status.open(QIODevice::ReadOnly));
    const QString masks = QString::fromLatin1(status.readAll());
    const auto mask = [&masks](const QString &name) {
        const QRegularExpression line(name + QStringLiteral(":\\s*([0-9a-f]+)"));
        return line.match(masks).captured(1).toULongLong(nullptr, 16);
    };
    const auto bit = [](int signal) {
        return 1ULL << (signal - 1);
    };
    QVERIFY((mask(QStringLiteral("SigIgn")) & bit(SIGHUP)) != 0);
    QVERIFY((mask(QStringLiteral("SigCgt")) & bit(SIGTERM)) != 0);
    QCOMPARE(host.process().state(), QProcess::Running);
    sendSignal(host, SIGTERM);
    QVERIFY(host.waitForEnd());
    QCOMPARE(host.process().exitCode(), 0);
}

void tst_ProcessEnd::aLostLinkRemovesTheFolder()
{
    FakeHost host;
    QVERIFY(host.start());
    QVERIFY(host.sync());
    const QString folder = folderOf(host);
    QCOMPARE(left(), QStringList(QDir(folder).dirName()));
    QCOMPARE(QDir(folder).path(), m_temporary->filePath(left().constFirst()));
    host.disconnectLink();
    QVERIFY(host.waitForEnd());
    QCOMPARE(left(), QStringList());
}

void tst_ProcessEnd::aKilledProcessLeavesItsFolderToTheNextOne()
{
    FakeHost living;
    QVERIFY(startWithoutKey(living));
    const QString kept = folderOf(living);
    QString stale;
    {
        FakeHost killed;
        QVERIFY(startWithoutKey(killed));
        stale = folderOf(killed);
        sendSignal(killed, SIGKILL);
        QVERIFY(killed.waitForEnd());
        QCOMPARE(killed.process().exitStatus(), QProcess::CrashExit);
    }
    QVERIFY(QDir(stale).exists());
    FakeHost next;
    QVERIFY(startWithoutKey(next));
    const QString own = folderOf(next);
    QVERIFY(!QDir(stale).exists());
    QStringList expected{QDir(kept).dirName(), QDir(own).dirName()};
    expected.sort();
    QCOMPARE(left(), expected);
    sendSignal(next, SIGTERM);
    QVERIFY(next.waitForEnd());
    QCOMPARE(left(), QStringList(QDir(kept).dirName()));
    sendSignal(living, SIGTERM);
    QVERIFY(living.waitForEnd());
    QCOMPARE(left(), QStringList());
}

void tst_ProcessEnd::processesSideBySideKeepTheirFolders()
{
    constexpr int kCount = 6;
    // All find the same leftovers at the same time.
    for (int i = 0; i < 3; ++i) {
        FakeHost killed;
        QVERIFY(startWithoutKey(killed));
        sendSignal(killed, SIGKILL);
        QVERIFY(killed.waitForEnd());
    }
    std::vector<std::unique_ptr<FakeHost>> hosts;
    for (int i = 0; i < kCount; ++i) {
        hosts.push_back(std::make_unique<FakeHost>());
        QVERIFY(hosts.back()->startProgram({QString()}));
    }
    QStringList folders;
    for (const auto &host : hosts) {
        QVERIFY(host->waitForLog(QStringLiteral("TutorialManager::~TutorialManager 276")));
        folders += QDir(folderOf(*host)).dirName();
    }
    folders.sort();
    QCOMPARE(folders.removeDuplicates(), 0);
    QCOMPARE(left(), folders);
    for (const auto &host : hosts) {
        sendSignal(*host, SIGINT);
    }
    for (const auto &host : hosts) {
        QVERIFY(host->waitForEnd());
        QCOMPARE(host->process().exitCode(), 0);
    }
    QCOMPARE(left(), QStringList());
}

QTEST_GUILESS_MAIN(tst_ProcessEnd)
#include "tst_ProcessEnd.moc"
