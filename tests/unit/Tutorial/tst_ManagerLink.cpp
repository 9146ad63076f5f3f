#include "LogCapture.h"
#include "ManagerFixture.h"

#include <QSignalSpy>

namespace {

const QString kSource =
    QStringLiteral("..\\..\\tutorial\\cpp\\Tutorial\\TutorialManager.cpp TutorialManager::");

QByteArray frame(const QByteArray &payload)
{
    return '0' + QByteArray::number(payload.size(), 16).rightJustified(8, '0') + '\x02' + payload + '\0';
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

/// The manager's end of a real socket, read by read.
class tst_ManagerLink : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void joins_two_reads_split_at_any_byte();
    void joins_reads_of_single_bytes();
    void drops_what_stands_behind_bye_in_the_same_read();
    void warns_with_all_the_bytes_data();
    void warns_with_all_the_bytes();
    void repeats_an_invalid_header_with_each_read();
    void drops_what_is_sent_before_the_link_is_up();

private:
    /// Writes bytes, and returns when the manager has read them in one read.
    bool inOneRead(const QByteArray &bytes);

    std::unique_ptr<ManagerFixture> m_fixture;
    std::unique_ptr<QSignalSpy> m_reads;
    std::unique_ptr<QSignalSpy> m_received;
};

void tst_ManagerLink::init()
{
    m_fixture = std::make_unique<ManagerFixture>();
    QVERIFY(m_fixture->start());
    auto *const socket = m_fixture->manager->findChild<QLocalSocket *>();
    QVERIFY(socket != nullptr);
    m_reads = std::make_unique<QSignalSpy>(socket, &QLocalSocket::readyRead);
    m_received = std::make_unique<QSignalSpy>(m_fixture->manager.get(), &TutorialManager::received);
}

void tst_ManagerLink::cleanup()
{
    m_received.reset();
    m_reads.reset();
    m_fixture.reset();
    deleteOverlays();
}

bool tst_ManagerLink::inOneRead(const QByteArray &bytes)
{
    const int before = m_reads->size();
    m_fixture->write(bytes);
    const bool read = QTest::qWaitFor([&] { return m_reads->size() > before; }, ManagerFixture::kLimitMs);
    QCoreApplication::processEvents();
    return read && m_reads->size() == before + 1;
}

void tst_ManagerLink::joins_two_reads_split_at_any_byte()
{
    const QByteArray whole = frame("one\x02"
                                   "two") +
                             frame("three");
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

void tst_ManagerLink::joins_reads_of_single_bytes()
{
    const QByteArray whole = frame("one");
    for (const char byte : whole) {
        QCOMPARE(m_received->size(), 0);
        QVERIFY(inOneRead(QByteArray(1, byte)));
    }
    QCOMPARE(m_received->size(), 1);
}

void tst_ManagerLink::drops_what_stands_behind_bye_in_the_same_read()
{
    m_fixture->receive({QStringLiteral("start")});
    m_received->clear();
    QVERIFY(inOneRead(frame("one\x02"
                            "bye\x01now\x02two") +
                      frame("three")));
    QCOMPARE(m_received->size(), 1);
    QCOMPARE(m_received->at(0).at(0).toString(), QStringLiteral("one"));
    QVERIFY(!m_fixture->manager->running());
    QVERIFY(inOneRead(frame("four")));
    QCOMPARE(m_received->size(), 2);
    QCOMPARE(m_received->at(1).at(0).toString(), QStringLiteral("four"));
}

void tst_ManagerLink::warns_with_all_the_bytes_data()
{
    QTest::addColumn<QByteArray>("read");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray good = frame("one");
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

void tst_ManagerLink::warns_with_all_the_bytes()
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

void tst_ManagerLink::repeats_an_invalid_header_with_each_read()
{
    LogCapture log;
    QVERIFY(inOneRead("Xnonsense"));
    QVERIFY(inOneRead(frame("one")));
    const QString warning = kSource + QStringLiteral("onReadyRead 396 Invalid header ");
    QCOMPARE(log.warnings(), (QStringList{warning + written(QByteArray("Xnonsense")),
                                          warning + written("Xnonsense" + frame("one"))}));
    QCOMPARE(m_received->size(), 0);
}

void tst_ManagerLink::drops_what_is_sent_before_the_link_is_up()
{
    // Nobody listens any more: this manager gets no link.
    m_received.reset();
    m_reads.reset();
    m_fixture.reset();
    TutorialManager manager;
    auto *const socket = manager.findChild<QLocalSocket *>();
    QVERIFY(socket != nullptr);
    LogCapture log;
    manager.send(QStringLiteral("early"));
    QCOMPARE(log.warnings(), QStringList());
    QCOMPARE(log.debugs(), QStringList{kSource + QStringLiteral("send 1396 \"early\" ") + written(socket) +
                                       QStringLiteral(" false")});
    QCOMPARE(socket->bytesToWrite(), 0);

    QLocalServer server;
    QVERIFY(server.listen(ManagerFixture::serverName()));
    socket->connectToServer(ManagerFixture::serverName());
    QVERIFY(QTest::qWaitFor([&server] { return server.hasPendingConnections(); }, ManagerFixture::kLimitMs));
    QLocalSocket *const host = server.nextPendingConnection();
    log.clear();
    manager.send(QStringLiteral("late"));
    QVERIFY(log.contains(QStringLiteral("send 1396 \"late\" ") + written(socket) + QStringLiteral(" true")));
    const QByteArray late("100000004\x02late\0", 15);
    QVERIFY(QTest::qWaitFor([&] { return host->bytesAvailable() >= late.size(); }, ManagerFixture::kLimitMs));
    QVERIFY(host->readAll().startsWith(late));
}

int main(int argc, char **argv)
{
    return runWithKey<tst_ManagerLink>(argc, argv);
}
#include "tst_ManagerLink.moc"
