#pragma once

#include "Frames.h"

#include <QByteArray>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

#include <functional>
#include <memory>

/// A host editor for tests: it starts the real program, listens for it, and sees what it sends and logs.
///
/// The settings of the program live in a temporary folder of this object. Every wait has a limit and returns
/// false when it is over.
class FakeHost
{
public:
    /// Only what never happens takes this long, so it allows for a machine that stands still for a while.
    static constexpr int kLimitMs = 60000;

    FakeHost();
    ~FakeHost();
    FakeHost(const FakeHost &) = delete;
    FakeHost &operator=(const FakeHost &) = delete;

    /// Listens under a key of its own, starts the program with it and waits for the connection.
    bool start(const QString &locale = QStringLiteral("en_US"));
    /// Starts the program with exactly these arguments; nobody listens unless listen() was called.
    bool startProgram(const QStringList &arguments);
    bool listen(const QString &key);
    bool waitForConnection();
    /// The connection goes down.
    void disconnectLink();
    /// Nothing more will be written; what the program sends is still read.
    bool closeWritingSide();
    /// Answers each "alive", as a host editor does: without it the program ends after 30 seconds in which
    /// nothing else is sent.
    void answerHeartbeats();

    /// Leaves what the program sends where it is, until the system takes no more of it; and takes it again.
    void stopReading();
    void resumeReading();

    [[nodiscard]] QString key() const { return m_key; }
    [[nodiscard]] QProcess &process() { return m_process; }
    /// Bytes of address space that the program has taken; below 0 when it cannot be told.
    [[nodiscard]] qint64 addressSpace() const;
    /// The most bytes of memory that the program has held at a time; below 0 when it cannot be told.
    [[nodiscard]] qint64 mostMemory() const;
    [[nodiscard]] QString settingsFolder() const { return m_folder.path(); }

    /// Fields joined to a command.
    static QByteArray command(const QStringList &fields);

    /// Writes bytes and has the operating system take them, as many as it does.
    void write(const QByteArray &bytes);
    /// The same, and waits until it has taken them all. False when the limit is over or the link is down.
    bool writeAll(const QByteArray &bytes);
    /// Writes one command in a frame of its own.
    void send(const QStringList &fields) { write(Frames::ofHost(command(fields))); }

    /// Says hello and shows a step with all its overlays.
    void showStep();

    /// Payloads received so far, "alive" left out; and how many "alive" there were.
    [[nodiscard]] QStringList payloads();
    [[nodiscard]] int aliveCount();
    /// All bytes received so far.
    [[nodiscard]] QByteArray receivedBytes();
    /// Waits until as many payloads besides "alive" are there.
    bool waitForPayloads(int count);

    /// Everything the program has written to its error output.
    [[nodiscard]] QString log();
    bool waitForLog(const QString &text);
    /// Waits until the program has handled all that was sent: asks it something and waits for the answer.
    bool sync();
    /// The same, and until all that it had sent by then has arrived: waits for the heartbeat behind it.
    bool syncBothWays();

    /// Has the program write its own time into each line of its log. To be called before it starts.
    void stampLog();
    /// Heartbeats in what the program has logged up to now.
    [[nodiscard]] int heartbeats();
    /// Milliseconds between one heartbeat and the next by the program's own clock, the shortest first: how
    /// late the test comes to look makes no difference. Needs stampLog().
    [[nodiscard]] QVector<qint64> sortedHeartbeatGaps();

    /// Loads the probe into the program, see ProgramProbe. To be called before it starts.
    void probe(const QString &argument = QString());
    /// What the probe has written up to now, a line each.
    [[nodiscard]] QStringList probed() const;

    /// Waits for the end of the program.
    bool waitForEnd(int limitMs = kLimitMs);

    /// Runs the event loop until @p condition holds.
    static bool waitFor(const std::function<bool()> &condition, int limitMs = kLimitMs);

private:
    void readPending();

    QTemporaryDir m_folder;
    QString m_key;
    QLocalServer m_server;
    QLocalSocket *m_socket = nullptr;
    QProcess m_process;
    QByteArray m_received;
    Frames::PayloadReader m_reader;
    QStringList m_payloads;
    QByteArray m_log;
    int m_syncCount = 0;
    int m_answered = 0;
};
