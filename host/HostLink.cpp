#include "host/HostLink.h"

#include "host/HostCommands.h"
#include "host/HostFrame.h"

#include <QUuid>

namespace {

constexpr int kGoodbyeMs = 2000;
constexpr int kLoggedBytes = 2048;

} // namespace

HostLink::HostLink(const QString &companionProgram, const QString &key, const QString &locale,
                   QObject *parent)
    : QObject(parent)
    , m_program(companionProgram)
    , m_key(key.isEmpty() ? QUuid::createUuid().toString(QUuid::Id128) : key)
    , m_locale(locale)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.setMaxPendingConnections(1);
    connect(&m_server, &QLocalServer::newConnection, this, &HostLink::onNewConnection);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::readyReadStandardError, this, &HostLink::onLogged);
    connect(&m_process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this, &HostLink::lose);
    // By the clock: the companion's own "alive" comes late behind an answer of many megabytes.
    m_keepAlive.setInterval(kKeepAliveMs);
    connect(&m_keepAlive, &QTimer::timeout, this, [this] { send(HostCommands::alive()); });
    m_silence.setSingleShot(true);
    m_silence.setInterval(kSilenceMs);
    connect(&m_silence, &QTimer::timeout, this, [this] {
        m_silent = true;
        Q_EMIT silenceChanged(true);
    });
}

HostLink::~HostLink()
{
    stop();
    disconnect(&m_process, nullptr, this, nullptr);
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(kGoodbyeMs)) {
        m_process.kill();
        m_process.waitForFinished(kGoodbyeMs);
    }
}

bool HostLink::start(Failure *failure)
{
    const QString name = QStringLiteral("tkvq%1").arg(m_key);
    if (!m_server.isListening() && !m_server.listen(name)) {
        *failure = {Failure::What::kListen, name, m_server.errorString()};
        return false;
    }
    if (m_process.state() != QProcess::NotRunning) {
        // The one before lost its connection and has not ended yet.
        const QSignalBlocker blocker(&m_process);
        m_process.kill();
        m_process.waitForFinished(kGoodbyeMs);
    }
    m_logged.clear();
    m_reader = {};
    m_process.start(m_program, {m_key, m_locale}, QIODevice::ReadOnly);
    if (!m_process.waitForStarted()) {
        *failure = {Failure::What::kCompanion, m_program, m_process.errorString()};
        return false;
    }
    m_expected = true;
    return true;
}

void HostLink::stop()
{
    m_expected = false;
    m_keepAlive.stop();
    m_silence.stop();
    m_server.close();
    if (m_socket == nullptr) {
        return;
    }
    send(HostCommands::bye());
    m_socket->flush();
    m_socket->disconnect(this);
    m_socket->disconnectFromServer();
    m_socket->deleteLater();
    m_socket.clear();
}

void HostLink::send(const QString &command)
{
    if (m_socket != nullptr) {
        m_socket->write(hostFrame({command}));
    }
}

void HostLink::onNewConnection()
{
    QLocalSocket *const socket = m_server.nextPendingConnection();
    if (m_socket != nullptr || !m_expected) {
        Q_EMIT problemFound(QStringLiteral("a second connection was turned away"));
        delete socket;
        return;
    }
    m_socket = socket;
    socket->setParent(this);
    connect(socket, &QLocalSocket::readyRead, this, &HostLink::onReadyRead);
    connect(socket, &QLocalSocket::disconnected, this, &HostLink::lose);
    m_keepAlive.start();
    m_silence.start();
    Q_EMIT connected();
    onReadyRead();
}

void HostLink::onReadyRead()
{
    if (m_socket == nullptr || m_socket->bytesAvailable() == 0) {
        return;
    }
    m_silence.start();
    if (m_silent) {
        m_silent = false;
        Q_EMIT silenceChanged(false);
    }
    const CompanionFrameReader::Result result = m_reader.read(m_socket->readAll());
    for (const QString &problem : result.problems) {
        Q_EMIT problemFound(problem);
    }
    for (const QString &command : result.commands) {
        if (command != HostCommands::alive()) {
            Q_EMIT received(command);
        }
    }
}

void HostLink::onLogged()
{
    m_logged.append(m_process.readAllStandardError());
    if (m_logged.size() > kLoggedBytes) {
        m_logged = m_logged.right(kLoggedBytes);
        m_logged.remove(0, m_logged.indexOf('\n') + 1);
    }
}

void HostLink::lose()
{
    if (!m_expected) {
        return;
    }
    m_expected = false;
    m_keepAlive.stop();
    m_silence.stop();
    if (m_socket != nullptr) {
        m_socket->disconnect(this);
        m_socket->deleteLater();
        m_socket.clear();
    }
    Q_EMIT lost(QString::fromUtf8(m_logged));
}
