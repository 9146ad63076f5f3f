#pragma once

#include "project/events/CommandBlock.h"
#include "project/events/CommandList.h"

#include <QJsonDocument>
#include <QtTest>

inline QString str(const char *text)
{
    return QString::fromUtf8(text);
}

/// A table with a command of each kind: a plain one, one with lines, one with entries, and one for each way
/// to have lists of its own.
inline EventCommands table()
{
    EventCommands table;
    const auto plainOf = [](int code, const QJsonArray &parameters) {
        EventCommands::Command command;
        command.code = code;
        command.name = str("command %1").arg(code);
        command.tab = str("flow");
        command.parameters = parameters;
        return command;
    };
    EventCommands::Command plain = plainOf(230, {60});
    table.add(plain);
    EventCommands::Command switches = plainOf(121, {1, 1, 0});
    switches.isRange = true;
    switches.rows = {{{{str("1"), str("{0}")}}, str("one")}, {{}, str("several")}};
    table.add(switches);
    EventCommands::Command message = plainOf(101, {QString(), 0, 0, 2});
    message.lines = 401;
    table.add(message);
    EventCommands::Command shop = plainOf(302, {0, 1, 0, 0, false});
    shop.entries = 605;
    table.add(shop);
    EventCommands::Command choices = plainOf(102, {QJsonArray{str("Yes"), str("No")}, 1, 0, 2, 0});
    choices.branches.areChoices = true;
    choices.branches.end = 404;
    table.add(choices);
    EventCommands::Command branch = plainOf(111, {0, 1, 0});
    branch.branches.otherwise = 411;
    branch.branches.end = 412;
    table.add(branch);
    EventCommands::Command loop = plainOf(112, {});
    loop.branches.end = 413;
    table.add(loop);
    EventCommands::Command battle = plainOf(301, {0, 1, false, false});
    battle.branches.outcomes = {{601, EventCommands::kAny}, {602, 2}, {603, 3}};
    battle.branches.end = 604;
    table.add(battle);
    return table;
}

/// A list of commands written as "code", or "code:parameter" with a text, indented by points:
/// "102 402:Yes .230 .0 404 0".
inline QJsonArray commands(const char *text)
{
    QJsonArray list;
    const QStringList words = str(text).split(QLatin1Char(' '));
    for (const QString &word : words) {
        const int indent = int(word.count(QLatin1Char('.')));
        const QString code = word.mid(indent).section(QLatin1Char(':'), 0, 0);
        const QString parameter = word.section(QLatin1Char(':'), 1);
        list.append(CommandBlock::entry(code.toInt(), indent,
                                        parameter.isEmpty() ? QJsonArray() : QJsonArray{parameter}));
    }
    return list;
}

/// The codes of a list with their indents, written in the same way.
inline QString codes(const QJsonArray &list)
{
    QStringList words;
    for (const QJsonValue &entry : list) {
        words.append(QString(entry[QLatin1String("indent")].toInt(), QLatin1Char('.')) +
                     QString::number(entry[QLatin1String("code")].toInt()));
    }
    return words.join(QLatin1Char(' '));
}
