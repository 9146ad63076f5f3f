#pragma once

#include <QObject>

/// Brings the signals by which a Unix system asks a process to end into the event loop: SIGTERM, SIGINT and
/// SIGHUP. A signal that the process was started to ignore, as with nohup, stays ignored. Elsewhere there are
/// no such signals, and this does nothing.
///
/// One object at a time. It needs the application object and lives as long as signals are to be heard; with
/// it goes what the signals did before.
class EndSignals : public QObject
{
    Q_OBJECT

public:
    explicit EndSignals(QObject *parent = nullptr);
    ~EndSignals() override;

Q_SIGNALS:
    /// The process shall end. Emitted from the event loop, never from within a signal handler.
    void received();
};
