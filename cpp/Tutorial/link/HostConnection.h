#pragma once

#include "Tutorial/link/FrameReader.h"
#include "Tutorial/link/KeepAlive.h"

#include <QLocalSocket>
#include <QObject>
#include <QString>

/// The link to the host editor: one local socket with frames in both directions, and its keep-alive.
///
/// It connects once. A connection that fails is left to the keep-alive, and one that was lost never comes
/// back.
class HostConnection final : public QObject, private FrameReader::Sink
{
    Q_OBJECT

public:
    explicit HostConnection(QObject *parent = nullptr);
    /// Ends the link without a signal.
    ~HostConnection() override;

    /// Connects to the host editor that listens under @p key. Until then there is no socket. To be called
    /// once.
    void connectToHost(const QString &key);

    /// Whether the link has ever been up.
    [[nodiscard]] bool connected() const { return m_connected; }

    /// Sends one command; without a link it is dropped, and nothing is queued.
    void send(const QString &command);

    /// To be called every 100 ms: says "alive" each second, and ends after 30 s in which not one byte
    /// arrived. Without a socket nothing is counted.
    void tick();

    // What the socket tells.
    void onReadyRead();
    void onConnected();
    void onDisconnected();
    void onStateChanged(QLocalSocket::LocalSocketState state);

Q_SIGNALS:
    /// One command of the host editor, out of its frame, from inside the read.
    void received(const QString &command);
    /// The host editor said "bye": the playback is over. What came behind it in the same read is dropped.
    void bye();
    /// The link is lost, or the host editor was silent for too long: the process has nothing left to do.
    /// Given again with every further silent tick.
    void ended();

private:
    bool command(const QString &text) override;
    void problem(FrameReader::Problem problem, const QByteArray &bytes) override;

    QLocalSocket *m_socket = nullptr;
    bool m_connected = false;
    FrameReader m_frames;
    KeepAlive m_keepAlive;
};
