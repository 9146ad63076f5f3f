#include "project/Commands.h"

#include <utility>

void Commands::add(const QString &name, Run run, IsOn isOn, CanRun canRun)
{
    const auto runIt = [run = std::move(run)](DataLayer &layer, const CommandCall & /*call*/) {
        run(layer);
    };
    m_commands.insert(name, {runIt, std::move(isOn), std::move(canRun)});
}

void Commands::add(const QString &name, const std::function<void()> &run, IsOn isOn, CanRun canRun)
{
    add(
        name, [run](DataLayer & /*layer*/) { run(); }, std::move(isOn), std::move(canRun));
}

void Commands::add(const QString &name, RunWithArgument run, IsOn isOn, CanRun canRun)
{
    m_commands.insert(name, {std::move(run), std::move(isOn), std::move(canRun), true});
}

QString Commands::argumentOf(const QString &command)
{
    return command.section(QLatin1Char(' '), 1);
}

QString Commands::problemOf(const QString &command) const
{
    const QString name = command.section(QLatin1Char(' '), 0, 0);
    const Command *known = find(command);
    if (known == nullptr) {
        return QStringLiteral("\"%1\" is unknown; use one of: %2")
            .arg(name, names().join(QStringLiteral(", ")));
    }
    const QString argument = argumentOf(command);
    if (known->needsArgument && argument.isEmpty()) {
        return QStringLiteral("\"%1\" needs what it is for, behind a blank, as in \"%1 data/Items\"")
            .arg(name);
    }
    if (!known->needsArgument && !argument.isEmpty()) {
        return QStringLiteral("\"%1\" takes no argument; remove \"%2\"").arg(name, argument);
    }
    return {};
}

void Commands::run(const QString &command, DataLayer &layer, const QJsonValue &entry) const
{
    if (const Command *known = find(command)) {
        known->run(layer, {argumentOf(command), entry});
    }
}

bool Commands::canRun(const QString &command, const DataLayer &layer) const
{
    const Command *known = find(command);
    return known == nullptr || !known->canRun || known->canRun(layer, argumentOf(command));
}

std::optional<bool> Commands::isOn(const QString &command) const
{
    const Command *known = find(command);
    if (known == nullptr || !known->isOn) {
        return std::nullopt;
    }
    return known->isOn();
}

const Commands::Command *Commands::find(const QString &command) const
{
    const auto known = m_commands.constFind(command.section(QLatin1Char(' '), 0, 0));
    return known != m_commands.constEnd() ? &*known : nullptr;
}
