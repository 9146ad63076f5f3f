#include "FakeHost.h"

#include <QTest>

/// Which lines of the log are warnings: whoever filters the log by its levels relies on it.
class tst_LogLevels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ofTheLinkAndItsCommands();
    void withoutAHost();
    void withoutAKey();
};

namespace {

/// Has the program write the level of each line in front of it.
void showLevels(FakeHost &host)
{
    QProcessEnvironment environment = host.process().processEnvironment();
    environment.insert(QStringLiteral("QT_MESSAGE_PATTERN"), QStringLiteral("%{type} %{message}"));
    host.process().setProcessEnvironment(environment);
}

/// The level of the lines that hold @p part behind the source path; both, joined, if they differ.
QString levelOf(FakeHost &host, const QString &part)
{
    QStringList levels;
    const QStringList lines = host.log().split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.contains(QLatin1Char(' ') + part)) {
            levels.append(line.section(QLatin1Char(' '), 0, 0));
        }
    }
    levels.removeDuplicates();
    return levels.join(QLatin1Char(','));
}

void compareLevels(FakeHost &host, const QString &level, const QStringList &parts)
{
    for (const QString &part : parts) {
        QVERIFY2(levelOf(host, part) == level, qPrintable(part + QLatin1String(": ") + levelOf(host, part)));
    }
}

} // namespace

void tst_LogLevels::ofTheLinkAndItsCommands()
{
    FakeHost host;
    showLevels(host);
    QVERIFY(host.start());
    const auto send = [&host](const char *command) {
        host.write(Frames::ofHost(QByteArray(command).replace(' ', '\x01')));
    };
    send("fromServer ja_JP");
    send("start 0 0 800 600");
    send("indicator update 1 2 MainWindow hint 7 0");
    send("showTooltip text 100 100");
    send("tutorialList");
    send("state show");
    send("tutorial TutorialStep1");
    send("tutorial TutorialList");
    send("requestPresetData nonsense");
    send("requestPresetData step4711");
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::timerEvent 460")));
    host.write("00000000g\x02");
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::onReadyRead 368")));
    host.write("000000002\x02"
               "abc");
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::onReadyRead 390")));
    QVERIFY(host.sync());
    host.write("Xnonsense");
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::onReadyRead 396")));
    host.disconnectLink();
    QVERIFY(host.waitForEnd());

    const QString manager = QStringLiteral("TutorialManager::");
    compareLevels(host, QStringLiteral("debug"),
                  {QStringLiteral("main 122"),
                   manager + QStringLiteral("TutorialManager 210"),
                   manager + QStringLiteral("TutorialManager 247"),
                   manager + QStringLiteral("onStateChanged 527"),
                   manager + QStringLiteral("onConnected 408"),
                   manager + QStringLiteral("send 1396"),
                   manager + QStringLiteral("onReceived 905"),
                   manager + QStringLiteral("onReceived 921"),
                   manager + QStringLiteral("onReceived 672"),
                   manager + QStringLiteral("onReceived 971"),
                   manager + QStringLiteral("timerEvent 427"),
                   manager + QStringLiteral("timerEvent 460"),
                   manager + QStringLiteral("setApplicationWindowSize 596"),
                   manager + QStringLiteral("getExistsFilename 1402"),
                   manager + QStringLiteral("getExistsFilename 1405"),
                   manager + QStringLiteral("onDisconnected 414"),
                   manager + QStringLiteral("requestClose 1535"),
                   manager + QStringLiteral("applyTranslation 1885"),
                   manager + QStringLiteral("applyTranslation 1928"),
                   QStringLiteral("TutorialEditor::Manager::Manager 276"),
                   QStringLiteral("TutorialEditor::Manager::getScenario 414"),
                   QStringLiteral("TutorialIndicator::setTargetWindowOffset 102"),
                   QStringLiteral("TutorialIndicator::init 139"),
                   QStringLiteral("EditorTooltip::show 74"),
                   QStringLiteral("DataSupport::readFile 137"),
                   QStringLiteral("DataSupport::readFile 141")});
    compareLevels(host, QStringLiteral("warning"),
                  {manager + QStringLiteral("onReadyRead 368"), manager + QStringLiteral("onReadyRead 390"),
                   manager + QStringLiteral("onReadyRead 396"),
                   manager + QStringLiteral("loadAndFeedback 1477"),
                   manager + QStringLiteral("onReceived 989"), manager + QStringLiteral("onReceived 1001"),
                   QStringLiteral("UndoRedo::UndoRedo 34")});
}

void tst_LogLevels::withoutAHost()
{
    FakeHost host;
    showLevels(host);
    QVERIFY(host.startProgram({QStringLiteral("nobody-%1").arg(QCoreApplication::applicationPid())}));
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::send 1396")));
    compareLevels(host, QStringLiteral("debug"),
                  {QStringLiteral("TutorialManager::connectToHost 231 QLocalSocket::ServerNotFoundError"),
                   QStringLiteral("TutorialManager::send 1396")});
}

void tst_LogLevels::withoutAKey()
{
    FakeHost host;
    showLevels(host);
    QVERIFY(host.startProgram({QString()}));
    QVERIFY(host.waitForLog(QStringLiteral("TutorialManager::~TutorialManager 276")));
    compareLevels(host, QStringLiteral("debug"),
                  {QStringLiteral("TutorialManager::~TutorialManager 268"),
                   QStringLiteral("TutorialManager::~TutorialManager 276")});
}

QTEST_GUILESS_MAIN(tst_LogLevels)
#include "tst_LogLevels.moc"
