#pragma once

#include "host/CompanionFrameReader.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QTimer>

/// The editor's end of the link: a local server of its own, the companion as a child process, and the one
/// connection between them.
///
/// While it is connected it keeps the companion alive, as long as the event loop of its thread runs. start()
/// may be called again after lost() or stop(). The destructor says goodbye and waits a moment for the
/// companion to end. When this process dies, the companion sees the connection break and ends too.
class HostLink : public QObject
{
    Q_OBJECT

public:
    /// The server's name is made of @p key; an empty one stands for a random key.
    HostLink(const QString &companionProgram, const QString &key, const QString &locale,
             QObject *parent = nullptr);
    ~HostLink() override;

    HostLink(const HostLink &) = delete;
    HostLink &operator=(const HostLink &) = delete;
    HostLink(HostLink &&) = delete;
    HostLink &operator=(HostLink &&) = delete;

    /// What kept start() from its work.
    struct Failure
    {
        enum class What { kListen, kCompanion };

        What what = What::kListen;
        /// The local socket that could not be listened on, or the program that does not start.
        QString name;
        /// As the system says it.
        QString reason;
    };

    /// Listens and starts the companion, and returns when it runs; connected() follows. False, with @p
    /// failure filled, when one of the two fails.
    [[nodiscard]] bool start(Failure *failure);

    /// Sends "bye" and ends the connection; the companion ends by itself. No lost() follows.
    void stop();

    [[nodiscard]] bool isConnected() const { return m_socket != nullptr; }
    [[nodiscard]] qint64 companionPid() const { return m_process.processId(); }

    /// One command, as HostCommands builds them. Dropped while not connected.
    void send(const QString &command);

    static constexpr int kSilenceMs = 5000;
    /// How often the companion hears "alive"; it ends when it has heard nothing for 30 seconds.
    static constexpr int kKeepAliveMs = 5000;

Q_SIGNALS:
    /// The companion connected: greet it.
    void connected();
    /// One command of the companion, fields separated by the byte 0x01; "alive" is not passed on.
    void received(const QString &command);
    /// The companion sent something that is no frame, or not a command.
    void problemFound(const QString &problem);
    /// Nothing came for kSilenceMs (true), or something came again (false).
    void silenceChanged(bool silent);
    /// The companion ended, or its connection did. @p lastWords are the last lines that it logged.
    void lost(const QString &lastWords);

private:
    void onNewConnection();
    void onReadyRead();
    void onLogged();
    void lose();

    QString m_program;
    QString m_key;
    QString m_locale;
    QLocalServer m_server;
    QProcess m_process;
    QPointer<QLocalSocket> m_socket;
    CompanionFrameReader m_reader;
    QTimer m_keepAlive;
    QTimer m_silence;
    bool m_silent = false;
    /// Between start() and lost() or stop().
    bool m_expected = false;
    QByteArray m_logged;
};
