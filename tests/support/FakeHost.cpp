#include "FakeHost.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QUuid>

#include <algorithm>

#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int kEndMs = 10000; // a program that hangs does not end
const QString kHeartbeat = QStringLiteral("TutorialManager::send 1396 \"alive\"");

} // namespace

FakeHost::FakeHost()
{
    m_process.setProgram(QStringLiteral(TUTORIAL_PROGRAM));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder.path());
    m_process.setProcessEnvironment(environment);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    QObject::connect(&m_process, &QProcess::readyReadStandardError, &m_process,
                     [this] { m_log += m_process.readAllStandardError(); });
}

FakeHost::~FakeHost()
{
    m_process.disconnect();
    // The program ends by itself when its link goes down; killed, it could not write down which lines it ran.
    if (m_socket != nullptr) {
        m_socket->abort();
        m_process.waitForFinished(kEndMs);
    }
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

bool FakeHost::start(const QString &locale)
{
    return listen(QUuid::createUuid().toString(QUuid::Id128)) && startProgram({m_key, locale}) &&
           waitForConnection();
}

bool FakeHost::startProgram(const QStringList &arguments)
{
    m_process.setArguments(arguments);
    m_process.start();
    return m_process.waitForStarted(kLimitMs);
}

bool FakeHost::listen(const QString &key)
{
    m_key = key;
    return m_server.listen(QStringLiteral("tkvq") + key);
}

bool FakeHost::waitForConnection()
{
    if (!waitFor([this] { return m_server.hasPendingConnections(); })) {
        return false;
    }
    m_socket = m_server.nextPendingConnection();
    return true;
}

void FakeHost::disconnectLink()
{
    m_socket->disconnectFromServer();
}

bool FakeHost::closeWritingSide()
{
    return ::shutdown(int(m_socket->socketDescriptor()), SHUT_WR) == 0;
}

void FakeHost::answerHeartbeats()
{
    QObject::connect(m_socket, &QLocalSocket::readyRead, m_socket, [this] {
        for (const int alive = aliveCount(); m_answered < alive; ++m_answered) {
            send({QStringLiteral("alive")});
        }
    });
}

qint64 FakeHost::mostMemory() const
{
    QFile file(QStringLiteral("/proc/%1/status").arg(m_process.processId()));
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray status = file.readAll();
        const int found = status.indexOf("VmHWM:");
        return found < 0 ? -1 : status.mid(found + 6).simplified().split(' ').value(0).toLongLong() * 1024;
    }
    return -1;
}

qint64 FakeHost::addressSpace() const
{
    QFile file(QStringLiteral("/proc/%1/statm").arg(m_process.processId()));
    return file.open(QIODevice::ReadOnly)
               ? file.readAll().split(' ').value(0).toLongLong() * sysconf(_SC_PAGESIZE)
               : -1;
}

void FakeHost::stopReading()
{
    readPending();
    m_socket->setReadBufferSize(1);
}

void FakeHost::resumeReading()
{
    m_socket->setReadBufferSize(0);
    readPending();
}

QByteArray FakeHost::command(const QStringList &fields)
{
    return fields.join(QChar(1)).toUtf8();
}

void FakeHost::write(const QByteArray &bytes)
{
    m_socket->write(bytes);
    m_socket->flush();
}

bool FakeHost::writeAll(const QByteArray &bytes)
{
    constexpr int kAtATimeMs = 200; // the event loop alone sends too little each time it comes round
    m_socket->write(bytes);
    const bool taken = waitFor(
        [this] {
            QElapsedTimer clock;
            clock.start();
            while (m_socket->bytesToWrite() > 0 && clock.elapsed() < kAtATimeMs) {
                m_socket->waitForBytesWritten(kAtATimeMs);
            }
            return m_socket->bytesToWrite() == 0;
        },
        3 * kLimitMs);
    return taken && m_socket->state() == QLocalSocket::ConnectedState;
}

void FakeHost::showStep()
{
    send({QStringLiteral("fromServer"), QStringLiteral("ja_JP")});
    send({QStringLiteral("start"), QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("800"),
          QStringLiteral("600")});
    send({QStringLiteral("indicator"), QStringLiteral("update"), QStringLiteral("100"), QStringLiteral("100"),
          QStringLiteral("MainWindow"), QStringLiteral("hint"), QStringLiteral("7"), QStringLiteral("0")});
}

void FakeHost::readPending()
{
    if (m_socket == nullptr) {
        return;
    }
    const QByteArray bytes = m_socket->readAll();
    m_received += bytes;
    m_reader.add(bytes);
    while (const std::optional<QString> payload = m_reader.take()) {
        if (*payload != QLatin1String("alive")) {
            m_payloads.append(*payload);
        }
    }
}

QByteArray FakeHost::receivedBytes()
{
    readPending();
    return m_received;
}

QStringList FakeHost::payloads()
{
    readPending();
    return m_payloads;
}

int FakeHost::aliveCount()
{
    return receivedBytes().count(Frames::ofCompanion("alive"));
}

bool FakeHost::waitForPayloads(int count)
{
    return waitFor([this, count] { return payloads().size() >= count; });
}

QString FakeHost::log()
{
    return QString::fromUtf8(m_log);
}

bool FakeHost::waitForLog(const QString &text)
{
    return waitFor([this, &text] { return log().contains(text); });
}

bool FakeHost::sync()
{
    // The size shows in the log, so each round has a line of its own to wait for.
    ++m_syncCount;
    send({QStringLiteral("applicationWindowSize"), QString::number(m_syncCount), QStringLiteral("77001")});
    return waitForLog(
        QStringLiteral("TutorialManager::setApplicationWindowSize 596 %1 77001").arg(m_syncCount));
}

bool FakeHost::syncBothWays()
{
    // Both ends keep the order: the first heartbeat after the answer in the log arrives behind all before it.
    return sync() && waitFor([this, next = heartbeats() + 1] { return aliveCount() >= next; });
}

void FakeHost::stampLog()
{
    QProcessEnvironment environment = m_process.processEnvironment();
    environment.insert(QStringLiteral("QT_MESSAGE_PATTERN"), QStringLiteral("%{time process} %{message}"));
    m_process.setProcessEnvironment(environment);
}

int FakeHost::heartbeats()
{
    QCoreApplication::processEvents(); // what has been written and not been read yet
    return log().count(kHeartbeat);
}

QVector<qint64> FakeHost::sortedHeartbeatGaps()
{
    static const QRegularExpression line(QStringLiteral("^ *(\\d+\\.\\d+) .*") +
                                             QRegularExpression::escape(kHeartbeat),
                                         QRegularExpression::MultilineOption);
    const QString logged = log();
    QVector<qint64> gaps;
    qint64 last = -1;
    QRegularExpressionMatchIterator matches = line.globalMatch(logged);
    while (matches.hasNext()) {
        const qint64 time = qRound64(matches.next().captured(1).toDouble() * 1000.0);
        if (last >= 0) {
            gaps += time - last;
        }
        last = time;
    }
    std::sort(gaps.begin(), gaps.end());
    return gaps;
}

void FakeHost::probe(const QString &argument)
{
    QProcessEnvironment environment = m_process.processEnvironment();
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(PROBE_FOLDER));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("tutorialprobe:") + argument);
    environment.insert(QStringLiteral("TUTORIAL_PROBE_FILE"), m_folder.filePath(QStringLiteral("probe")));
    m_process.setProcessEnvironment(environment);
}

QStringList FakeHost::probed() const
{
    QFile file(m_folder.filePath(QStringLiteral("probe")));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    // A line counts when it is whole.
    return QString::fromUtf8(file.readAll()).section(QLatin1Char('\n'), 0, -2).split(QLatin1Char('\n'));
}

bool FakeHost::waitForEnd(int limitMs)
{
    return waitFor([this] { return m_process.state() == QProcess::NotRunning; }, limitMs);
}

bool FakeHost::waitFor(const std::function<bool()> &condition, int limitMs)
{
    return QTest::qWaitFor(condition, limitMs);
}
