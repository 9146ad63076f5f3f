#include "Frames.h"
#include "host/HostCommands.h"
#include "host/HostLink.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

#include <csignal>

namespace {

constexpr int kSoonMs = 30000;

} // namespace

/// The link against a companion whose process only sleeps; its socket is the test's.
class tst_HostLink : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void passesCommandsBothWays();
    void keepsTheCompanionAliveWhateverItSends();
    void noticesSilence();
    void sayGoodbyeOnStop();
    void isLostWithTheConnection();
    void isLostWithTheProcess();
    void startsAgainAfterItWasLost();
    void startsAgainAfterItWasStopped();
    void turnsASecondConnectionAway();
    void onlyTheOwnerMayConnect();
    void dropsWhatIsSentBeforeTheConnection();
    void saysWhatKeptItFromStarting();

private:
    void start(const QByteArray &script);
    void connectCompanion();

    QTemporaryDir *m_room = nullptr;
    QString m_key;
    HostLink *m_link = nullptr;
    QLocalSocket *m_companion = nullptr;
};

void tst_HostLink::init()
{
    m_room = new QTemporaryDir;
    m_key = QUuid::createUuid().toString(QUuid::Id128);
}

void tst_HostLink::cleanup()
{
    delete m_companion;
    m_companion = nullptr;
    if (m_link->companionPid() > 0) {
        ::kill(static_cast<pid_t>(m_link->companionPid()), SIGKILL);
    }
    delete m_link;
    m_link = nullptr;
    delete m_room;
}

void tst_HostLink::start(const QByteArray &script)
{
    QFile program(m_room->filePath(QStringLiteral("companion")));
    QVERIFY(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\n" + script + '\n');
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    program.close();
    m_link = new HostLink(program.fileName(), m_key, QStringLiteral("ja_JP"));
    HostLink::Failure failure;
    QVERIFY2(m_link->start(&failure), qPrintable(failure.reason));
}

void tst_HostLink::connectCompanion()
{
    QSignalSpy connected(m_link, &HostLink::connected);
    delete m_companion;
    m_companion = new QLocalSocket;
    m_companion->connectToServer(QStringLiteral("tkvq") + m_key);
    QVERIFY(!connected.isEmpty() || connected.wait(kSoonMs));
}

void tst_HostLink::passesCommandsBothWays()
{
    start("exec sleep 60");
    connectCompanion();
    QSignalSpy received(m_link, &HostLink::received);
    m_companion->write(Frames::ofCompanion("next") + Frames::ofCompanion("start\x01x\x01-1"));
    QTRY_COMPARE(received.size(), 2);
    QCOMPARE(received.at(1).constFirst().toString(), QStringLiteral("start\u0001x\u0001-1"));
    m_link->send(HostCommands::windowPop());
    QTRY_COMPARE(m_companion->bytesAvailable(), 26);
    QCOMPARE(m_companion->readAll(), QByteArray("00000000f\x02windowStack\x01pop\0", 26));
}

void tst_HostLink::keepsTheCompanionAliveWhateverItSends()
{
    const QByteArray alive("000000005\x02"
                           "alive\0",
                           16);
    start("exec sleep 60");
    connectCompanion();
    QSignalSpy received(m_link, &HostLink::received);
    // Behind the beginning of an answer no other frame comes through.
    m_companion->write(Frames::ofCompanion("alive") +
                       Frames::ofCompanion("feedbackPresetData\x01{}").left(20));
    QTRY_COMPARE_WITH_TIMEOUT(m_companion->bytesAvailable(), alive.size(), kSoonMs);
    QCOMPARE(m_companion->readAll(), alive);
    QVERIFY(received.isEmpty());
}

void tst_HostLink::noticesSilence()
{
    start("exec sleep 60");
    connectCompanion();
    QSignalSpy silence(m_link, &HostLink::silenceChanged);
    QVERIFY(silence.wait(HostLink::kSilenceMs + kSoonMs));
    QCOMPARE(silence.constFirst().constFirst().toBool(), true);
    m_companion->write(Frames::ofCompanion("alive"));
    QVERIFY(silence.wait(kSoonMs));
    QCOMPARE(silence.constLast().constFirst().toBool(), false);
}

void tst_HostLink::sayGoodbyeOnStop()
{
    start("exec sleep 60");
    connectCompanion();
    QSignalSpy lost(m_link, &HostLink::lost);
    QSignalSpy disconnected(m_companion, &QLocalSocket::disconnected);
    m_link->stop();
    QVERIFY(!disconnected.isEmpty() || disconnected.wait(kSoonMs));
    QCOMPARE(m_companion->readAll(), QByteArray("000000003\x02"
                                                "bye\0",
                                                14));
    QVERIFY(lost.isEmpty());
}

void tst_HostLink::isLostWithTheConnection()
{
    start("echo 'last words' >&2; exec sleep 60");
    connectCompanion();
    QSignalSpy lost(m_link, &HostLink::lost);
    m_companion->abort();
    QVERIFY(!lost.isEmpty() || lost.wait(kSoonMs));
    QVERIFY(!m_link->isConnected());
    QCOMPARE(lost.size(), 1);
}

void tst_HostLink::isLostWithTheProcess()
{
    start("echo 'last words' >&2");
    QSignalSpy lost(m_link, &HostLink::lost);
    QVERIFY(!lost.isEmpty() || lost.wait(kSoonMs));
    QCOMPARE(lost.constFirst().constFirst().toString(), QStringLiteral("last words\n"));
}

void tst_HostLink::startsAgainAfterItWasLost()
{
    start("exec sleep 60");
    connectCompanion();
    const qint64 first = m_link->companionPid();
    m_companion->abort();
    QTRY_VERIFY(!m_link->isConnected());
    HostLink::Failure failure;
    QVERIFY2(m_link->start(&failure), qPrintable(failure.reason));
    QVERIFY(m_link->companionPid() != first);
    connectCompanion();
    QVERIFY(m_link->isConnected());
}

void tst_HostLink::startsAgainAfterItWasStopped()
{
    start("exec sleep 60");
    connectCompanion();
    const qint64 first = m_link->companionPid();
    m_link->stop();
    QVERIFY(!m_link->isConnected());
    HostLink::Failure failure;
    QVERIFY2(m_link->start(&failure), qPrintable(failure.reason));
    QVERIFY(m_link->companionPid() != first);
    connectCompanion();
    QVERIFY(m_link->isConnected());
}

void tst_HostLink::turnsASecondConnectionAway()
{
    start("exec sleep 60");
    connectCompanion();
    QSignalSpy problems(m_link, &HostLink::problemFound);
    QLocalSocket second;
    second.connectToServer(QStringLiteral("tkvq") + m_key);
    QTRY_COMPARE(problems.size(), 1);
    QTRY_COMPARE(second.state(), QLocalSocket::UnconnectedState);
    QVERIFY(m_link->isConnected());
}

void tst_HostLink::onlyTheOwnerMayConnect()
{
    start("exec sleep 60");
    const QFile socket(QDir::temp().filePath(QStringLiteral("tkvq") + m_key));
    QVERIFY(socket.exists());
    QVERIFY(!(socket.permissions() &
              (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)));
}

void tst_HostLink::dropsWhatIsSentBeforeTheConnection()
{
    start("exec sleep 60");
    m_link->send(HostCommands::stop());
    connectCompanion();
    m_link->send(HostCommands::tutorialList());
    QTRY_COMPARE(m_companion->bytesAvailable(), 23);
}

void tst_HostLink::saysWhatKeptItFromStarting()
{
    const QString missing = m_room->filePath(QStringLiteral("no such program"));
    m_link = new HostLink(missing, m_key, QStringLiteral("en_US"));
    HostLink::Failure failure;
    QVERIFY(!m_link->start(&failure));
    QCOMPARE(failure.what, HostLink::Failure::What::kCompanion);
    QCOMPARE(failure.name, missing);
    QVERIFY(!failure.reason.isEmpty());

    const QString noName = QStringLiteral("a/b");
    HostLink second(missing, noName, QStringLiteral("en_US"));
    QVERIFY(!second.start(&failure));
    QCOMPARE(failure.what, HostLink::Failure::What::kListen);
    QCOMPARE(failure.name, QStringLiteral("tkvq") + noName);
    QVERIFY(!failure.reason.isEmpty());
}

QTEST_GUILESS_MAIN(tst_HostLink)
#include "tst_HostLink.moc"
