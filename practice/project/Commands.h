#pragma once

#include <QMap>
#include <QStringList>

#include <functional>
#include <optional>

class DataLayer;

/// What controls can do with the project, by name.
class Commands
{
public:
    using Run = std::function<void(DataLayer &)>;
    using IsOn = std::function<bool()>;

    /// @p run gets the layer of the window in which the control stands. @p isOn tells whether the tool, mode
    /// or view that the command chooses is the present one; other commands have none.
    void add(const QString &name, Run run, IsOn isOn = {});
    void add(const QString &name, const std::function<void()> &run, IsOn isOn = {});

    [[nodiscard]] QStringList names() const { return m_commands.keys(); }

    /// Does nothing for a name that is not there.
    void run(const QString &name, DataLayer &layer) const;
    /// Nothing for a command that chooses nothing.
    [[nodiscard]] std::optional<bool> isOn(const QString &name) const;

private:
    struct Command
    {
        Run run;
        IsOn isOn;
    };

    QMap<QString, Command> m_commands;
};
