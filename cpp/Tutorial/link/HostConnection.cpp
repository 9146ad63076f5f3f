#include "Tutorial/link/HostConnection.h"

#include "Tutorial/link/CommandFields.h"
#include "Tutorial/link/CommandWords.h"
#include "Tutorial/link/Frame.h"
#include "tool/LogLine.h"
#include "tool/LogSource.h"

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;
constexpr int kLoggedCharacters = 128;

} // namespace

HostConnection::HostConnection(QObject *parent)
    : QObject(parent)
{
}

HostConnection::~HostConnection()
{
    if (m_socket != nullptr) {
        // A socket that goes down while it is deleted must not end the process from in here.
        m_socket->disconnect(this);
        delete m_socket;
    }
}

void HostConnection::connectToHost(const QString &key)
{
    m_socket = new QLocalSocket(this);
    connect(m_socket, &QLocalSocket::readyRead, this, &HostConnection::onReadyRead);
    connect(m_socket, &QLocalSocket::connected, this, &HostConnection::onConnected);
    connect(m_socket, &QLocalSocket::disconnected, this, &HostConnection::onDisconnected);
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    const auto errorSignal = &QLocalSocket::errorOccurred;
#else
    const auto errorSignal = QOverload<QLocalSocket::LocalSocketError>::of(&QLocalSocket::error);
#endif
    connect(m_socket, errorSignal, this, [](QLocalSocket::LocalSocketError error) {
        logDebug(kSource, "TutorialManager::connectToHost", 231) << error;
    });
    connect(m_socket, &QLocalSocket::stateChanged, this, &HostConnection::onStateChanged);
    m_socket->connectToServer(QStringLiteral("tkvq%1").arg(key), QIODevice::ReadWrite);
}

void HostConnection::send(const QString &command)
{
    logDebug(kSource, "TutorialManager::send", 1396)
        << command.left(kLoggedCharacters) << m_socket << m_connected;
    if (m_socket != nullptr && m_connected) {
        m_socket->write(outboundFrame(command));
    }
}

void HostConnection::tick()
{
    if (m_socket == nullptr) {
        return;
    }
    switch (m_keepAlive.tick()) {
    case KeepAlive::Due::kClose:
        Q_EMIT ended();
        break;
    case KeepAlive::Due::kSendAlive:
        send(CommandWords::kAlive);
        break;
    case KeepAlive::Due::kNothing:
        break;
    }
}

void HostConnection::onReadyRead()
{
    if (m_socket == nullptr) {
        return;
    }
    m_keepAlive.heard();
    m_frames.read(m_socket->readAll(), *this);
}

void HostConnection::onConnected()
{
    m_connected = true;
    logDebug(kSource, "TutorialManager::onConnected", 408);
}

void HostConnection::onDisconnected()
{
    logDebug(kSource, "TutorialManager::onDisconnected", 414);
    // The socket is in the middle of emitting this signal: it is left to its parent.
    m_socket = nullptr;
    Q_EMIT ended();
}

void HostConnection::onStateChanged(QLocalSocket::LocalSocketState state)
{
    logDebug(kSource, "TutorialManager::onStateChanged", 527) << state;
}

bool HostConnection::command(const QString &text)
{
    if (CommandFields::word(text) == CommandWords::kBye) {
        Q_EMIT bye();
        return false;
    }
    Q_EMIT received(text);
    return true;
}

void HostConnection::problem(FrameReader::Problem problem, const QByteArray &bytes)
{
    constexpr const char *kFunction = "TutorialManager::onReadyRead";
    switch (problem) {
    case FrameReader::Problem::kInvalidHeader:
        logWarning(kSource, kFunction, 396) << "Invalid header" << bytes;
        break;
    case FrameReader::Problem::kInvalidPayloadSize:
        logWarning(kSource, kFunction, 368) << "Invalid payload size" << bytes;
        break;
    case FrameReader::Problem::kTerminatorNotFound:
        logWarning(kSource, kFunction, 390) << "Terminator not found" << bytes;
        break;
    }
}
