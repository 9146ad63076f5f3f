// The link of TutorialManager: the socket, frames in both directions, and the end of the process.

#include "Tutorial/TutorialManager.h"

#include "Tutorial/link/CommandFields.h"
#include "Tutorial/link/CommandWords.h"
#include "Tutorial/link/Frame.h"
#include "tool/LogLine.h"
#include "tool/LogSource.h"

#include <cstdlib>

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;
constexpr int kLoggedCharacters = 128;

} // namespace

void TutorialManager::connectToHost(const QString &key)
{
    m_socket = new QLocalSocket(this);
    connect(m_socket, &QLocalSocket::readyRead, this, &TutorialManager::onReadyRead);
    connect(m_socket, &QLocalSocket::connected, this, &TutorialManager::onConnected);
    connect(m_socket, &QLocalSocket::disconnected, this, &TutorialManager::onDisconnected);
#if QT_VERSION >= QT_VERSION_CHECK(5, 15, 0)
    const auto errorSignal = &QLocalSocket::errorOccurred;
#else
    const auto errorSignal = QOverload<QLocalSocket::LocalSocketError>::of(&QLocalSocket::error);
#endif
    connect(m_socket, errorSignal, this, [](QLocalSocket::LocalSocketError error) {
        logDebug(kSource, "TutorialManager::connectToHost", 231) << error;
    });
    connect(m_socket, &QLocalSocket::stateChanged, this, &TutorialManager::onStateChanged);
    connect(this, &TutorialManager::received, this, &TutorialManager::onReceived);
    m_socket->connectToServer(QStringLiteral("tkvq%1").arg(key), QIODevice::ReadWrite);
}

void TutorialManager::send(const QString &text)
{
    logDebug(kSource, "TutorialManager::send", 1396)
        << text.left(kLoggedCharacters) << m_socket << m_connected;
    if (m_socket && m_connected) {
        m_socket->write(outboundFrame(text));
    }
}

void TutorialManager::onReadyRead()
{
    m_keepAlive.heard();
    m_frames.read(m_socket->readAll(), *this);
}

bool TutorialManager::command(const QString &text)
{
    if (CommandFields::word(text) == CommandWords::kBye) {
        stopPlayback();
        return false;
    }
    Q_EMIT received(text);
    return true;
}

void TutorialManager::problem(FrameReader::Problem problem, const QByteArray &bytes)
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

void TutorialManager::onConnected()
{
    m_connected = true;
    logDebug(kSource, "TutorialManager::onConnected", 408);
}

void TutorialManager::onDisconnected()
{
    logDebug(kSource, "TutorialManager::onDisconnected", 414);
    // The socket is in the middle of emitting this signal: it is left to the end of the process.
    m_socket = nullptr;
    requestClose();
}

void TutorialManager::onStateChanged(QLocalSocket::LocalSocketState socketState)
{
    logDebug(kSource, "TutorialManager::onStateChanged", 527) << socketState;
}

void TutorialManager::requestClose()
{
    logDebug(kSource, "TutorialManager::requestClose", 1535);
    std::exit(EXIT_SUCCESS);
}
