#include "project/events/EventCommands.h"

#include "lesson/description/JsonReader.h"
#include "project/ChoiceSets.h"

#include <QDir>

#include <algorithm>

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

void readBranches(JsonReader &reader, EventCommands::Branches *branches)
{
    if (reader.has(str("of"))) {
        branches->areChoices = reader.choice(str("of"), {str("choices")}) == str("choices");
        branches->end = 404;
    } else {
        branches->end = reader.number(str("end"));
        branches->otherwise = reader.number(str("else"), 0);
    }
    if (reader.has(str("outcomes"))) {
        const QJsonArray codes = reader.value(str("outcomes")).toArray();
        const QVector<int> when = reader.numbers(str("when"), int(codes.size()));
        for (int i = 0; i < codes.size(); ++i) {
            branches->outcomes.append({codes.at(i).toInt(), when.at(i)});
        }
    }
    reader.reportUnknownFields();
}

/// The value, in which an object with texts in the languages of the editor stands for the one in @p locale.
QJsonValue inLanguage(const QJsonValue &value, const QString &locale)
{
    if (value.isArray()) {
        QJsonArray list;
        const QJsonArray values = value.toArray();
        for (const QJsonValue &element : values) {
            list.append(inLanguage(element, locale));
        }
        return list;
    }
    return value.toObject().contains(locale) ? value.toObject().value(locale) : value;
}

/// One text, or a list of texts with what they are for; none where only the name is to be shown.
QVector<EventCommands::RowForm> readRows(JsonReader &reader, const QString &locale)
{
    QVector<EventCommands::RowForm> rows;
    if (!reader.has(str("row"))) {
        return rows;
    }
    if (reader.value(str("row")).isObject()) {
        return {{QJsonObject(), reader.localText(str("row")).value(locale)}};
    }
    for (JsonReader &row : reader.objects(str("row"))) {
        rows.append({row.value(str("is")).toObject(), row.localText(str("text")).value(locale)});
        row.reportUnknownFields();
    }
    return rows;
}

EventCommands::Command readCommand(JsonReader &reader, const QString &locale)
{
    EventCommands::Command command;
    command.code = reader.number(str("code"));
    command.name = reader.localText(str("name")).value(locale);
    command.rows = readRows(reader, locale);
    if (reader.has(str("tab"))) {
        command.tab = reader.choice(str("tab"), EventCommands::tabs());
    }
    if (reader.has(str("parameters"))) {
        const QJsonValue parameters = reader.value(str("parameters"));
        command.parameters = inLanguage(parameters, locale).toArray();
        if (!parameters.isArray()) {
            reader.addError(str("parameters"), str("must be a list, [ ... ]"));
        }
    }
    command.lines = reader.number(str("lines"), 0);
    command.entries = reader.number(str("entries"), 0);
    command.isRange = reader.flag(str("range"));
    if (auto branches = reader.object(str("branches"))) {
        readBranches(*branches, &command.branches);
    }
    // Whoever makes the windows reads what the form looks like.
    command.hasForm = !reader.objects(str("controls")).isEmpty();
    reader.reportUnknownFields();
    return command;
}

/// The value itself, or that of the member which it names.
QJsonValue wished(const QJsonValue &value, const QJsonObject &form)
{
    const QString text = value.toString();
    const bool isName = text.startsWith(QLatin1Char('{')) && text.endsWith(QLatin1Char('}'));
    return isName ? form.value(text.mid(1, text.size() - 2)) : value;
}

} // namespace

QString EventCommands::Command::rowOf(const QJsonObject &form) const
{
    const auto fits = [&form](const RowForm &row) {
        for (auto member = row.is.begin(); member != row.is.end(); ++member) {
            if (!ChoiceSets::isSame(form.value(member.key()), wished(member.value(), form))) {
                return false;
            }
        }
        return true;
    };
    const auto row = std::find_if(rows.cbegin(), rows.cend(), fits);
    return row != rows.cend() ? row->text : name;
}

QVector<int> EventCommands::Command::markers() const
{
    QVector<int> codes;
    if (branches.areChoices) {
        codes += {kChoice, kCancelled};
    }
    if (branches.otherwise != 0) {
        codes.append(branches.otherwise);
    }
    for (const Outcome &outcome : branches.outcomes) {
        codes.append(outcome.code);
    }
    if (branches.end != 0) {
        codes.append(branches.end);
    }
    return codes;
}

QStringList EventCommands::tabs()
{
    return {str("message"), str("flow"),    str("party"), str("actor"),
            str("scene"),   str("picture"), str("sound"), str("battle")};
}

EventCommands EventCommands::read(const QString &folder, const QString &locale, QStringList *errors)
{
    EventCommands table;
    const QDir directory(folder);
    const QStringList files = directory.entryList({str("*.json")}, QDir::Files, QDir::Name);
    for (const QString &name : files) {
        if (auto reader = JsonReader::open(directory.filePath(name), errors)) {
            const Command command = readCommand(*reader, locale);
            if (name != str("%1.json").arg(command.code)) {
                reader->addError(str("code"),
                                 str("the file of this code must be called \"%1.json\"").arg(command.code));
            }
            table.add(command);
        }
    }
    return table;
}

const EventCommands::Command *EventCommands::find(int code) const
{
    const auto found = m_commands.constFind(code);
    return found != m_commands.constEnd() ? &*found : nullptr;
}

QVector<int> EventCommands::codesIn(const QString &tab) const
{
    QVector<int> codes;
    for (const Command &command : m_commands) {
        if (command.tab == tab) {
            codes.append(command.code);
        }
    }
    return codes;
}
