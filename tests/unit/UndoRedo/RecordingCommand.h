#pragma once

#include "UndoRedo/UndoMergeableCommand.h"
#include "UndoRedo/UndoRedo.h"

#include <QSet>
#include <QStringList>

#include <memory>

/// A mergeable command that writes into a journal what is asked of it. What the commands under test leave
/// behind is deleted with deleteLeftovers.
class RecordingCommand : public UndoMergeableCommand
{
public:
    RecordingCommand(const QString &name, int value, int type = 1)
        : UndoMergeableCommand(value, &UndoRedo::instance)
        , m_name(name)
        , m_type(type)
    {
        alive().insert(this);
        setText(name);
    }
    ~RecordingCommand() override { alive().remove(this); }
    Q_DISABLE_COPY(RecordingCommand)

    void doUndo() override { journal() << QStringLiteral("undo ") + label(); }
    void doRedo() override { journal() << QStringLiteral("redo ") + label(); }
    [[nodiscard]] int commandType() const override { return m_type; }
    /// Merges with commands of the same name.
    bool mergeSame(const UndoMergeableCommand &other) override
    {
        return other.text() == m_name && apply(other.value(), false, &other);
    }
    bool apply(const QVariant &newValue, bool /*saveOld*/, const UndoMergeableCommand *source) override
    {
        if (source == nullptr) {
            return false;
        }
        setValue(newValue);
        return true;
    }
    [[nodiscard]] std::unique_ptr<UndoMergeableCommand> clone() const override
    {
        return std::make_unique<RecordingCommand>(m_name, value().toInt(), m_type);
    }

    static QStringList &journal()
    {
        static QStringList lines;
        return lines;
    }
    static QSet<RecordingCommand *> &alive()
    {
        static QSet<RecordingCommand *> commands;
        return commands;
    }
    static void deleteLeftovers()
    {
        const QSet<RecordingCommand *> leftovers = alive();
        qDeleteAll(leftovers);
    }

private:
    [[nodiscard]] QString label() const { return m_name + QLatin1Char('=') + value().toString(); }

    QString m_name;
    int m_type;
};

/// A command that never merges.
class PlainCommand : public QUndoCommand
{
public:
    explicit PlainCommand(const QString &name)
        : QUndoCommand(name)
    {
    }
    void undo() override { RecordingCommand::journal() << QStringLiteral("undo ") + text(); }
    void redo() override { RecordingCommand::journal() << QStringLiteral("redo ") + text(); }
};
