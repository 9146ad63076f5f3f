#pragma once

#include "RecordingCommand.h"
#include "RecordingHost.h"
#include "UndoRedo/UndoRedo.h"

#include <QObject>
#include <QString>
#include <QTime>

#include <memory>

/// A published undo history for each test, with a host that remembers and a clock that the test sets.
class UndoRedoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_host = RecordingHost();
        m_now = QTime(12, 0);
        m_undoRedo = std::make_unique<UndoRedo>(nullptr, &m_host);
        m_undoRedo->setClock([this] { return m_now; });
        UndoRedo::publish(m_undoRedo.get());
        RecordingCommand::journal().clear();
    }
    void cleanup()
    {
        m_undoRedo.reset();
        RecordingCommand::deleteLeftovers();
    }

protected:
    /// A transaction of one mergeable command.
    void single(const QString &name, int value)
    {
        m_undoRedo->beginSingle(name);
        m_undoRedo->addCommand(std::make_unique<RecordingCommand>(name, value));
        m_undoRedo->endSingle();
    }

    /// A line of the log, up to and with @p rest.
    [[nodiscard]] static QString line(const char *function, int number, const QString &rest)
    {
        const QString start = QStringLiteral("..\\..\\tutorial\\cpp\\UndoRedo.cpp UndoRedo::%1 %2")
                                  .arg(QLatin1String(function))
                                  .arg(number);
        return rest.isEmpty() ? start : start + QLatin1Char(' ') + rest;
    }

    RecordingHost m_host;
    std::unique_ptr<UndoRedo> m_undoRedo;
    QTime m_now;
};
