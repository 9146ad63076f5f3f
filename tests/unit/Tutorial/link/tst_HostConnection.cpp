#include "FrameRecorder.h"
#include "LogCapture.h"
#include "Tutorial/link/HostConnection.h"

#include <QDebug>
#include <QLocalServer>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

namespace {

constexpr int kLimitMs = 30000;
const QString kSource =
    QStringLiteral("..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp TutorialManager::");

QString key()
{
    return QStringLiteral("host-connection-%1").arg(QCoreApplication::applicationPid());
}

/// How QDebug writes a value.
template<typename Value>
QString written(const Value &value)
{
    QString text;
    QDebug(&text).nospace() << value;
    return text;
}

} // namespace

/// The companion's end of a real socket, without a companion.
class tst_HostConnection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void joinsTwoReadsSplitAtAnyByte();
    void joinsReadsOfSingleBytes();
    void dropsWhatStandsBehindByeInTheSameRead();
    void warnsWithAllTheBytes_data();
    void warnsWithAllTheBytes();
    void repeatsAnInvalidHeaderWithEachRead();

    void dropsWhatIsSentBeforeTheLinkIsUp();
    void logs128CharactersAndSendsAll_data();
    void logs128CharactersAndSendsAll();
    void answersFromInsideARead();

    void logsTheWayUp();
    void logsWhyItDoesNotComeUp();
    void endsWhenTheHostGoes();
    void goesWithoutAWord();
    void saysAliveAtEveryTenthTick();
    void endsAtThe300thSilentTick_data();
    void endsAtThe300thSilentTick();
    void countsNothingBeforeItConnects();

private:
    /// Writes bytes, and returns when the connection has read them in one read.
    bool inOneRead(const QByteArray &bytes);
    [[nodiscard]] QLocalSocket *socket() const { return m_connection->findChild<QLocalSocket *>(); }
    void tick(int count);
    /// Waits until the host has got @p size bytes, and takes all.
    QByteArray sentBytes(int size);

    std::unique_ptr<QLocalServer> m_server;
    QPointer<QLocalSocket> m_host;
    std::unique_ptr<HostConnection> m_connection;
    std::unique_ptr<QSignalSpy> m_reads;
    std::unique_ptr<QSignalSpy> m_received;
    std::unique_ptr<QSignalSpy> m_ended;
};

void tst_HostConnection::init()
{
    const QString name = QStringLiteral("tkvq") + key();
    QLocalServer::removeServer(name);
    m_server = std::make_unique<QLocalServer>();
    QVERIFY(m_server->listen(name));
    m_connection = std::make_unique<HostConnection>();
    m_received = std::make_unique<QSignalSpy>(m_connection.get(), &HostConnection::received);
    m_ended = std::make_unique<QSignalSpy>(m_connection.get(), &HostConnection::ended);
    m_connection->connectToHost(key());
    QVERIFY(QTest::qWaitFor([this] { return m_server->hasPendingConnections(); }, kLimitMs));
    m_host = m_server->nextPendingConnection();
    m_reads = std::make_unique<QSignalSpy>(socket(), &QLocalSocket::readyRead);
}

void tst_HostConnection::cleanup()
{
    m_ended.reset();
    m_received.reset();
    m_reads.reset();
    m_connection.reset();
    m_server.reset();
}

bool tst_HostConnection::inOneRead(const QByteArray &bytes)
{
    const int before = m_reads->size();
    m_host->write(bytes);
    m_host->flush();
    const bool read = QTest::qWaitFor([&] { return m_reads->size() > before; }, kLimitMs);
    QCoreApplication::processEvents();
    return read && m_reads->size() == before + 1;
}

void tst_HostConnection::tick(int count)
{
    for (int i = 0; i < count; ++i) {
        m_connection->tick();
    }
}

QByteArray tst_HostConnection::sentBytes(int size)
{
    return QTest::qWaitFor([&] { return m_host->bytesAvailable() >= size; }, kLimitMs) ? m_host->readAll()
                                                                                       : QByteArray();
}

void tst_HostConnection::joinsTwoReadsSplitAtAnyByte()
{
    const QByteArray whole = Frames::ofHost("one\x02"
                                            "two") +
                             Frames::ofHost("three");
    for (int split = 1; split < whole.size(); ++split) {
        m_received->clear();
        QVERIFY(inOneRead(whole.left(split)));
        QVERIFY(inOneRead(whole.mid(split)));
        QCOMPARE(m_received->size(), 3);
        QCOMPARE(m_received->at(0).at(0).toString(), QStringLiteral("one"));
        QCOMPARE(m_received->at(1).at(0).toString(), QStringLiteral("two"));
        QCOMPARE(m_received->at(2).at(0).toString(), QStringLiteral("three"));
    }
}

void tst_HostConnection::joinsReadsOfSingleBytes()
{
    const QByteArray whole = Frames::ofHost("one");
    for (const char byte : whole) {
        QCOMPARE(m_received->size(), 0);
        QVERIFY(inOneRead(QByteArray(1, byte)));
    }
    QCOMPARE(m_received->size(), 1);
}

void tst_HostConnection::dropsWhatStandsBehindByeInTheSameRead()
{
    const QSignalSpy bye(m_connection.get(), &HostConnection::bye);
    QVERIFY(inOneRead(Frames::ofHost("one\x02"
                                     "bye\x01now\x02two") +
                      Frames::ofHost("three")));
    QCOMPARE(m_received->size(), 1);
    QCOMPARE(m_received->at(0).at(0).toString(), QStringLiteral("one"));
    QCOMPARE(bye.size(), 1);
    QVERIFY(inOneRead(Frames::ofHost("four")));
    QCOMPARE(m_received->size(), 2);
    QCOMPARE(m_received->at(1).at(0).toString(), QStringLiteral("four"));
    QCOMPARE(bye.size(), 1);
    QCOMPARE(m_ended->size(), 0);
}

void tst_HostConnection::warnsWithAllTheBytes_data()
{
    QTest::addColumn<QByteArray>("read");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = Frames::ofHost("one");
    const QByteArray unterminated = "000000003\x02"
                                    "abc\x01\x80\"\\d";
    QTest::newRow("no terminator") << good + unterminated << QStringLiteral("390 Terminator not found")
                                   << good + unterminated;
    const QByteArray wrongSize = "00000000g\x02"
                                 "abc" +
                                 good;
    QTest::newRow("no number") << good + wrongSize << QStringLiteral("368 Invalid payload size") << wrongSize;
    QTest::newRow("too long") << good + "010000001\x02"
                                        "abc"
                              << QStringLiteral("368 Invalid payload size") << QByteArray("010000001\x02");
    const QByteArray wrongHeader = "1" + good.mid(1);
    QTest::newRow("wrong header") << good + wrongHeader << QStringLiteral("396 Invalid header")
                                  << wrongHeader;
}

void tst_HostConnection::warnsWithAllTheBytes()
{
    QFETCH(QByteArray, read);
    QFETCH(QString, message);
    QFETCH(QByteArray, bytes);
    LogCapture log;
    QVERIFY(inOneRead(read));
    QCOMPARE(log.warnings(), QStringList{kSource + QStringLiteral("onReadyRead ") + message +
                                         QLatin1Char(' ') + written(bytes)});
    QCOMPARE(m_received->value(0).value(0).toString(), QStringLiteral("one"));
}

void tst_HostConnection::repeatsAnInvalidHeaderWithEachRead()
{
    LogCapture log;
    QVERIFY(inOneRead("Xnonsense"));
    QVERIFY(inOneRead(Frames::ofHost("one")));
    const QString warning = kSource + QStringLiteral("onReadyRead 396 Invalid header ");
    QCOMPARE(log.warnings(), (QStringList{warning + written(QByteArray("Xnonsense")),
                                          warning + written("Xnonsense" + Frames::ofHost("one"))}));
    QCOMPARE(m_received->size(), 0);
}

void tst_HostConnection::dropsWhatIsSentBeforeTheLinkIsUp()
{
    // Nobody listens any more: this one gets no link.
    m_server->close();
    HostConnection connection;
    connection.connectToHost(key());
    auto *const socket = connection.findChild<QLocalSocket *>();
    QVERIFY(socket != nullptr);
    LogCapture log;
    connection.send(QStringLiteral("early"));
    QVERIFY(!connection.connected());
    QCOMPARE(log.warnings(), QStringList());
    QCOMPARE(log.debugs(), QStringList{kSource + QStringLiteral("send 1396 \"early\" ") + written(socket) +
                                       QStringLiteral(" false")});
    QCOMPARE(socket->bytesToWrite(), 0);

    QVERIFY(m_server->listen(QStringLiteral("tkvq") + key()));
    socket->connectToServer(m_server->serverName());
    QVERIFY(QTest::qWaitFor([this] { return m_server->hasPendingConnections(); }, kLimitMs));
    m_host = m_server->nextPendingConnection();
    QVERIFY(connection.connected());
    log.clear();
    connection.send(QStringLiteral("late"));
    QCOMPARE(log.debugs(), QStringList{kSource + QStringLiteral("send 1396 \"late\" ") + written(socket) +
                                       QStringLiteral(" true")});
    QCOMPARE(sentBytes(15), Frames::ofCompanion("late"));
}

void tst_HostConnection::logs128CharactersAndSendsAll_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("logged");
    const auto run = [](int count) {
        return QString(count, QLatin1Char('x'));
    };
    QTest::newRow("127") << run(127) << run(127);
    QTest::newRow("128") << run(128) << run(128);
    QTest::newRow("300") << run(300) << run(128);
    // Counted in bytes where it is framed.
    const QString kanji(300, QChar(0x8a9e));
    QTest::newRow("300 of three bytes") << kanji << kanji.left(128);
    QTest::newRow("empty") << QString() << QString();
}

void tst_HostConnection::logs128CharactersAndSendsAll()
{
    QFETCH(QString, text);
    QFETCH(QString, logged);
    LogCapture log;
    m_connection->send(text);
    QCOMPARE(log.debugs(), QStringList{kSource + QStringLiteral("send 1396 ") + written(logged) +
                                       QLatin1Char(' ') + written(socket()) + QStringLiteral(" true")});
    const QByteArray expected = Frames::ofCompanion(text.toUtf8());
    QCOMPARE(sentBytes(expected.size()), expected);
}

void tst_HostConnection::answersFromInsideARead()
{
    connect(m_connection.get(), &HostConnection::received, m_connection.get(),
            [this](const QString &text) { m_connection->send(QStringLiteral("re ") + text); });
    QVERIFY(inOneRead(Frames::ofHost("one\x02\x02two") + Frames::ofHost("") + Frames::ofHost("three")));
    const QByteArray expected = Frames::ofCompanion("re one") + Frames::ofCompanion("re ") +
                                Frames::ofCompanion("re two") + Frames::ofCompanion("re three");
    QCOMPARE(sentBytes(expected.size()), expected);
}

void tst_HostConnection::logsTheWayUp()
{
    LogCapture log;
    HostConnection connection;
    connection.connectToHost(key());
    QVERIFY(QTest::qWaitFor([&] { return connection.connected(); }, kLimitMs));
    const QString state = kSource + QStringLiteral("onStateChanged 527 QLocalSocket::");
    // Qt tells of the state first, and of the connection then.
    QCOMPARE(log.lines(),
             (QStringList{state + QStringLiteral("ConnectingState"), state + QStringLiteral("ConnectedState"),
                          kSource + QStringLiteral("onConnected 408")}));
}

void tst_HostConnection::logsWhyItDoesNotComeUp()
{
    m_server->close();
    LogCapture log;
    HostConnection connection;
    const QSignalSpy ended(&connection, &HostConnection::ended);
    connection.connectToHost(key());
    QCoreApplication::processEvents();
    QVERIFY2(log.debugs().contains(kSource +
                                   QStringLiteral("connectToHost 231 QLocalSocket::ServerNotFoundError")),
             qPrintable(log.lines().join(QLatin1Char('\n'))));
    QCOMPARE(log.warnings(), QStringList());
    // It is left to the silence.
    QCOMPARE(ended.size(), 0);
    for (int i = 0; i < 299; ++i) {
        connection.tick();
    }
    QCOMPARE(ended.size(), 0);
    connection.tick();
    QCOMPARE(ended.size(), 1);
}

void tst_HostConnection::endsWhenTheHostGoes()
{
    LogCapture log;
    m_host->disconnectFromServer();
    QVERIFY(QTest::qWaitFor([this] { return !m_ended->isEmpty(); }, kLimitMs));
    QCOMPARE(m_ended->size(), 1);
    QCOMPARE(log.debugs().constLast(), kSource + QStringLiteral("onDisconnected 414"));
    log.clear();
    m_connection->send(QStringLiteral("late"));
    QCOMPARE(log.debugs(),
             QStringList{kSource + QStringLiteral("send 1396 \"late\" ") +
                         written(static_cast<const QObject *>(nullptr)) + QStringLiteral(" true")});
    QVERIFY(m_connection->connected()); // it has been
    tick(600);
    QCOMPARE(m_ended->size(), 1);
}

void tst_HostConnection::goesWithoutAWord()
{
    m_reads.reset();
    LogCapture log;
    int ends = 0;
    connect(m_connection.get(), &HostConnection::ended, this, [&ends] { ++ends; });
    m_connection.reset();
    QVERIFY(QTest::qWaitFor([this] { return m_host->state() == QLocalSocket::UnconnectedState; }, kLimitMs));
    QCOMPARE(ends, 0);
    QCOMPARE(log.lines(), QStringList());
}

void tst_HostConnection::saysAliveAtEveryTenthTick()
{
    tick(9);
    QCOMPARE(socket()->bytesToWrite() + m_host->bytesAvailable(), 0);
    tick(1);
    QCOMPARE(sentBytes(16), Frames::ofCompanion("alive"));
    tick(20);
    QCOMPARE(sentBytes(32), Frames::ofCompanion("alive") + Frames::ofCompanion("alive"));
}

void tst_HostConnection::endsAtThe300thSilentTick_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("behind");
    QTest::newRow("silence") << QByteArray() << 0 << 300;
    QTest::newRow("a command in time") << Frames::ofHost("contents") << 299 << 300;
    QTest::newRow("half a frame") << QByteArray("0000") << 299 << 300;
    QTest::newRow("no frame at all") << QByteArray("?") << 150 << 300;
}

void tst_HostConnection::endsAtThe300thSilentTick()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, before);
    QFETCH(int, behind);
    tick(before);
    if (!bytes.isEmpty()) {
        QVERIFY(inOneRead(bytes));
    }
    tick(behind - 1);
    QCOMPARE(m_ended->size(), 0);
    tick(1);
    QCOMPARE(m_ended->size(), 1);
    // Whoever does not end for it hears it again.
    tick(2);
    QCOMPARE(m_ended->size(), 3);
}

void tst_HostConnection::countsNothingBeforeItConnects()
{
    LogCapture log;
    HostConnection connection;
    const QSignalSpy ended(&connection, &HostConnection::ended);
    for (int i = 0; i < 600; ++i) {
        connection.tick();
    }
    QCOMPARE(ended.size(), 0);
    QCOMPARE(log.lines(), QStringList());
    connection.send(QStringLiteral("early"));
    QCOMPARE(log.lines(),
             QStringList{kSource + QStringLiteral("send 1396 \"early\" ") +
                         written(static_cast<const QObject *>(nullptr)) + QStringLiteral(" false")});
}

QTEST_GUILESS_MAIN(tst_HostConnection)
#include "tst_HostConnection.moc"
