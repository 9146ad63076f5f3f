#include "project/Commands.h"

#include <utility>

void Commands::add(const QString &name, Run run, IsOn isOn)
{
    m_commands.insert(name, {std::move(run), std::move(isOn)});
}

void Commands::add(const QString &name, const std::function<void()> &run, IsOn isOn)
{
    add(
        name, [run](DataLayer & /*layer*/) { run(); }, std::move(isOn));
}

void Commands::run(const QString &name, DataLayer &layer) const
{
    const auto command = m_commands.constFind(name);
    if (command != m_commands.constEnd()) {
        command->run(layer);
    }
}

std::optional<bool> Commands::isOn(const QString &name) const
{
    const auto command = m_commands.constFind(name);
    if (command == m_commands.constEnd() || !command->isOn) {
        return std::nullopt;
    }
    return command->isOn();
}
