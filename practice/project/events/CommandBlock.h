#pragma once

#include "project/events/EventCommands.h"

#include <QJsonObject>

/// One command with all that belongs to it, as entries of a list: made from a form, and read into one. What a
/// command looked like before stays as it is where the form does not change it.
namespace CommandBlock {

/// One entry of a list of commands.
[[nodiscard]] QJsonObject entry(int code, int indent, const QJsonArray &parameters = {});

/// The form of the command that @p entries begin with; they are all that belongs to it.
[[nodiscard]] QJsonObject form(const EventCommands &table, const QJsonArray &entries);

/// The command that @p form means, indented by @p indent. @p before: what it was, with the same indent, or
/// nothing for a new one.
[[nodiscard]] QJsonArray made(const EventCommands &table, const QJsonObject &form, int indent,
                              const QJsonArray &before);

} // namespace CommandBlock
