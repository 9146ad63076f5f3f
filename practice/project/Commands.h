#pragma once

#include <QJsonValue>
#include <QMap>
#include <QStringList>

#include <functional>
#include <optional>

class DataLayer;

/// What a control says to a command beside its name.
struct CommandCall
{
    /// What stands behind the name, such as the path of a list.
    QString argument;
    /// What the command adds to a list; undefined where nothing is said of it.
    QJsonValue entry = QJsonValue::Undefined;
};

/// What controls can do with the project, by name. In a description a command is its name, or its name and an
/// argument with a blank between them: "map.new", "list.add data/Items".
class Commands
{
public:
    using Run = std::function<void(DataLayer &)>;
    using RunWithArgument = std::function<void(DataLayer &, const CommandCall &)>;
    using IsOn = std::function<bool()>;
    using CanRun = std::function<bool(const DataLayer &, const QString &argument)>;

    /// @p run gets the layer of the window in which the control stands. @p isOn tells whether the tool, mode
    /// or view that the command chooses is the present one; other commands have none. @p canRun tells whether
    /// there is anything to do at present: controls of a command that cannot run are grey.
    void add(const QString &name, Run run, IsOn isOn = {}, CanRun canRun = {});
    void add(const QString &name, const std::function<void()> &run, IsOn isOn = {}, CanRun canRun = {});
    /// A command that needs an argument.
    void add(const QString &name, RunWithArgument run, IsOn isOn = {}, CanRun canRun = {});

    [[nodiscard]] QStringList names() const { return m_commands.keys(); }

    /// What stands behind the name in @p command; empty for nothing.
    [[nodiscard]] static QString argumentOf(const QString &command);
    /// What is wrong with the name, or with there being an argument, and how to mend it; empty when nothing
    /// is.
    [[nodiscard]] QString problemOf(const QString &command) const;

    /// Does nothing for a name that is not there.
    void run(const QString &command, DataLayer &layer,
             const QJsonValue &entry = QJsonValue(QJsonValue::Undefined)) const;
    /// True also for a name that is not there.
    [[nodiscard]] bool canRun(const QString &command, const DataLayer &layer) const;
    /// Nothing for a command that chooses nothing.
    [[nodiscard]] std::optional<bool> isOn(const QString &command) const;

private:
    struct Command
    {
        RunWithArgument run;
        IsOn isOn;
        CanRun canRun;
        bool needsArgument = false;
    };

    [[nodiscard]] const Command *find(const QString &command) const;

    QMap<QString, Command> m_commands;
};
