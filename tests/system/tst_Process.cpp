#include "FakeHost.h"
#include "FilledParts.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// The life of the process: how it starts, and the ways in which it ends.
class tst_Process : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWithStatus0WhenTheLinkGoesDown();
    void endsWithoutAMessageAboutDestroyedObjects();
    void leavesNoTemporaryFolderBehind();
    void livesOnWhenNobodyReadsItsLog();
    void registersItsBundlesBeforeMain();
    void setsTheApplicationUpBeforeItsLoop();
    void buildsItsObjectsInOrder();
    void joinsTheUndoHistoryToTheManager();
    void connectsUnderTheDefaultKeyWithoutArguments();
    void staysWithEnUSWithOneArgument();
    void ignoresFurtherArguments();
    void logsALocaleWithoutACatalogueAndRunsOn();
    void staysWithoutASocketUnderAnEmptyKey();
    void endsByItselfAfter30SilentSeconds();
    void startsAlthoughNobodyListens();
    void readsTheStoredLocale();
    void runsWithoutAHomeFolder();
};

void tst_Process::endsWithStatus0WhenTheLinkGoesDown()
{
    FakeHost host;
    QVERIFY(host.start());
    QVERIFY(host.sync());
    host.disconnectLink();
    const int heartbeats = host.heartbeats();
    QVERIFY(host.waitForEnd());
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
    // By its own clock it takes no second to notice, and then nothing comes in between.
    QVERIFY2(host.heartbeats() <= heartbeats + 1, qPrintable(host.log()));
    const QStringList end = filledParts(
        host.log().section(QStringLiteral("TutorialManager::onDisconnected 414"), 1), QLatin1Char('\n'));
    QCOMPARE(end.size(), 1);
    QVERIFY2(end.constFirst().endsWith(QStringLiteral("TutorialManager::requestClose 1535")),
             qPrintable(end.constFirst()));
}

void tst_Process::endsWithoutAMessageAboutDestroyedObjects()
{
    FakeHost host;
    QVERIFY(host.start());
    host.showStep();
    host.send(
        {QStringLiteral("showTooltip"), QStringLiteral("text"), QStringLiteral("10"), QStringLiteral("10")});
    QVERIFY(host.sync());
    host.disconnectLink();
    QVERIFY(host.waitForEnd());
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
    const QString end = host.log().section(QStringLiteral("TutorialManager::requestClose 1535"), 1);
    QCOMPARE(end.trimmed(), QString());
}

void tst_Process::leavesNoTemporaryFolderBehind()
{
    FakeHost host;
    QVERIFY(host.start());
    QVERIFY(host.sync());
    const QRegularExpression line(QStringLiteral("UndoRedo::UndoRedo 34 \"Tutorial\" \"([^\"]+)\""));
    const QString folder = line.match(host.log()).captured(1);
    QVERIFY2(QDir(folder).isAbsolute() && QDir(folder).exists(), qPrintable(folder));
    host.disconnectLink();
    QVERIFY(host.waitForEnd());
    QVERIFY(!QDir(folder).exists());
}

void tst_Process::livesOnWhenNobodyReadsItsLog()
{
    const QTemporaryDir folder;
    const QByteArray pipe = QFile::encodeName(folder.filePath(QStringLiteral("log")));
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    const int reader = open(pipe.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    QVERIFY(reader >= 0);
    FakeHost host;
    host.process().setStandardErrorFile(QFile::decodeName(pipe));
    QVERIFY(host.start());
    close(reader);
    host.send({QStringLiteral("tutorialList")});
    QVERIFY(host.waitForPayloads(1));
    host.disconnectLink();
    QVERIFY(host.waitForEnd());
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
}

void tst_Process::registersItsBundlesBeforeMain()
{
    FakeHost host;
    QProcessEnvironment environment = host.process().processEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(RESOURCE_SPY));
    host.process().setProcessEnvironment(environment);
    QVERIFY(host.start());
    QVERIFY(host.sync());
    const QStringList before = host.log()
                                   .section(QStringLiteral("\\main main 122"), 0, 0)
                                   .split(QLatin1Char('\n'))
                                   .filter(QStringLiteral("Tutorial registers"));
    QCOMPARE(before, (QStringList{QStringLiteral("Tutorial registers icon in format 2"),
                                  QStringLiteral("Tutorial registers resource in format 2"),
                                  QStringLiteral("Tutorial registers translations in format 2"),
                                  QStringLiteral("Tutorial registers qml in format 2")}));
    QCOMPARE(host.log().count(QStringLiteral("Tutorial registers")), 4);
}

void tst_Process::setsTheApplicationUpBeforeItsLoop()
{
    FakeHost host;
    QProcessEnvironment environment = host.process().processEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(MAIN_SPY));
    // Numbers that the locale of the system would write otherwise.
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
    host.process().setProcessEnvironment(environment);
    QVERIFY(host.start());
    QVERIFY(host.sync());
    const QStringList told = host.log()
                                 .split(QLatin1Char('\n'))
                                 .filter(QStringLiteral("main has set"))
                                 .replaceInStrings(QStringLiteral("main has set "), QString());
    QCOMPARE(
        told,
        (QStringList{QStringLiteral("the name to Tutorial"), QStringLiteral("the version to 0.1.0"),
                     QStringLiteral("the organisation to VELMORAN"),
                     QStringLiteral("the domain to velmoran.example"), QStringLiteral("the locale to C"),
                     QStringLiteral("the number 1234.5 to 1234.5"), QStringLiteral("threads of X11 to true"),
                     QStringLiteral("the end with the last window to false"),
                     QStringLiteral("the host of the history to true")}));
}

void tst_Process::buildsItsObjectsInOrder()
{
    FakeHost host;
    QVERIFY(host.start());
    QVERIFY(host.sync());
    const QString log = host.log();
    const QStringList steps = {QStringLiteral("\\main main 122 \":/translations/en_US\" true"),
                               QStringLiteral("TutorialManager::TutorialManager 210 \"en_US\" \"ja_JP\""),
                               QStringLiteral("onStateChanged 527 QLocalSocket::ConnectingState"),
                               QStringLiteral("TutorialManager::TutorialManager 247 true"),
                               QStringLiteral("UndoRedo::UndoRedo 34 \"Tutorial\"")};
    int place = 0;
    for (const QString &step : steps) {
        const int found = log.indexOf(step, place);
        QVERIFY2(found >= 0, qPrintable(step + QStringLiteral("\nis not where it belongs in\n") + log));
        place = found;
    }
}

void tst_Process::joinsTheUndoHistoryToTheManager()
{
    FakeHost host;
    host.probe(QStringLiteral("history"));
    QVERIFY(host.start());
    QVERIFY(FakeHost::waitFor([&host] { return host.probed().contains(QStringLiteral("watching")); }));
    // The history, cleared, tells the manager; the document finds the history, and its steps tell again.
    QCOMPARE(host.probed(), QStringList({QStringLiteral("modified false"), QStringLiteral("errors "),
                                         QStringLiteral("pasted 1"), QStringLiteral("canUndo true"),
                                         QStringLiteral("modified true"), QStringLiteral("modified false"),
                                         QStringLiteral("watching")}));
}

void tst_Process::connectsUnderTheDefaultKeyWithoutArguments()
{
    // In a folder of temporary files of their own: the key is the same for everyone on this machine.
    const QTemporaryDir folder;
    const QByteArray usual = qgetenv("TMPDIR");
    const auto back =
        qScopeGuard([&usual] { usual.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", usual); });
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    FakeHost host;
    QVERIFY(host.listen(QStringLiteral("20200318-0017")));
    QVERIFY(host.startProgram({}));
    QVERIFY(host.waitForConnection());
    QVERIFY(host.waitForLog(QStringLiteral("\\main main 122 \":/translations/en_US\" true")));
}

void tst_Process::staysWithEnUSWithOneArgument()
{
    FakeHost host;
    QVERIFY(host.listen(QStringLiteral("one-argument-%1").arg(QCoreApplication::applicationPid())));
    QVERIFY(host.startProgram({host.key()}));
    QVERIFY(host.waitForConnection());
    QVERIFY(host.waitForLog(QStringLiteral("..\\..\\tutorial\\main main 122 \":/translations/en_US\" true")));
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::TutorialManager 247 true")));
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::onConnected 408")));
}

void tst_Process::ignoresFurtherArguments()
{
    FakeHost host;
    QVERIFY(host.listen(QStringLiteral("more-arguments-%1").arg(QCoreApplication::applicationPid())));
    QVERIFY(host.startProgram(
        {host.key(), QStringLiteral("zh_CN"), QStringLiteral("ja_JP"), QStringLiteral("x")}));
    QVERIFY(host.waitForConnection());
    QVERIFY(host.waitForLog(QStringLiteral("main 122 \":/translations/zh_CN\" true")));
}

void tst_Process::logsALocaleWithoutACatalogueAndRunsOn()
{
    FakeHost host;
    QVERIFY(host.start(QStringLiteral("xx_YY")));
    QVERIFY(host.waitForLog(QStringLiteral("main 122 \":/translations/xx_YY\" false")));
    QVERIFY(host.sync());
    host.send({QStringLiteral("tutorialList")});
    QVERIFY(host.waitForPayloads(1));
}

void tst_Process::staysWithoutASocketUnderAnEmptyKey()
{
    FakeHost host;
    QVERIFY(host.startProgram({QString()}));
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::~TutorialManager")));
    QCOMPARE(host.process().state(), QProcess::Running);
    QVERIFY(!host.log().contains(QStringLiteral("onStateChanged")));
    QVERIFY(!host.log().contains(QStringLiteral("TutorialManager::send")));
    host.process().terminate();
    QVERIFY(host.waitForEnd());
    QCOMPARE(host.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(host.process().exitCode(), 0);
}

void tst_Process::startsAlthoughNobodyListens()
{
    FakeHost host;
    QVERIFY(host.startProgram({QStringLiteral("nobody-%1").arg(QCoreApplication::applicationPid())}));
    // The heartbeat goes on without a link, and is dropped.
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::send 1396 \"alive\"")));
    QCOMPARE(host.process().state(), QProcess::Running);
}

void tst_Process::endsByItselfAfter30SilentSeconds()
{
    // One whose host editor says nothing, and one whose host editor is not there.
    FakeHost silent;
    FakeHost absent;
    QElapsedTimer clock;
    clock.start();
    silent.stampLog();
    absent.stampLog();
    QVERIFY(silent.start());
    QVERIFY(absent.startProgram({QStringLiteral("absent-%1").arg(QCoreApplication::applicationPid())}));
    for (FakeHost *host : {&silent, &absent}) {
        QVERIFY(host->waitForEnd(90000));
        QVERIFY2(clock.elapsed() > 28000, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(host->process().exitStatus(), QProcess::NormalExit);
        QCOMPARE(host->process().exitCode(), 0);
        QCOMPARE(host->log().count(QStringLiteral("TutorialManager::send 1396 \"alive\"")), 29);
        QVERIFY(host->log().contains(QStringLiteral("TutorialManager::requestClose 1535")));
        // Thirty times what usually lies between two heartbeats: a machine that stands still adds to one.
        const QVector<qint64> gaps = host->sortedHeartbeatGaps();
        QCOMPARE(gaps.size(), 28);
        const qint64 usual = gaps.at(gaps.size() / 2);
        QVERIFY2(usual > 850 && usual < 1300, qPrintable(QString::number(usual)));
    }
    QVERIFY(FakeHost::waitFor([&silent] { return silent.aliveCount() >= 29; }));
    QCOMPARE(silent.aliveCount(), 29);
    QVERIFY(!silent.log().contains(QStringLiteral("onDisconnected")));
    QVERIFY(absent.log().contains(QStringLiteral("QLocalSocket::ServerNotFoundError")));
}

void tst_Process::readsTheStoredLocale()
{
    FakeHost host;
    QDir(host.settingsFolder()).mkpath(QStringLiteral("VELMORAN"));
    QFile settings(host.settingsFolder() + QStringLiteral("/VELMORAN/Tutorial.conf"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[General]\ndebugLocale=ja_JP\n");
    settings.close();
    QVERIFY(host.start());
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::TutorialManager 210 \"ja_JP\" \"en_US\"")));
}

void tst_Process::runsWithoutAHomeFolder()
{
    FakeHost host;
    QProcessEnvironment environment = host.process().processEnvironment();
    for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        environment.remove(QString::fromLatin1(name));
    }
    host.process().setProcessEnvironment(environment);
    QVERIFY(host.start());
    host.send({QStringLiteral("fromServer"), QStringLiteral("ja_JP")});
    host.send({QStringLiteral("tutorialList")});
    QVERIFY(host.waitForPayloads(1));
    QVERIFY(host.log().contains(QStringLiteral("TutorialManager::TutorialManager 210 \"en_US\" \"ja_JP\"")));
    host.disconnectLink();
    QVERIFY(host.waitForEnd());
    QCOMPARE(host.process().exitCode(), 0);
}

QTEST_GUILESS_MAIN(tst_Process)
#include "tst_Process.moc"
