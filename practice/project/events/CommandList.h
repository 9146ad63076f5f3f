#pragma once

#include "project/events/EventCommands.h"

#include <QJsonObject>

/// A list of event commands while it is edited: each command with what follows it, such as the lines of a
/// message, and with the lists that belong to it, such as those of its choices. Entries are objects with
/// "code", "indent" and "parameters"; each list ends with one of code 0. Places are places in the array.
///
/// Entries of codes that the table does not know, and members that nobody knows, stay what they are.
///
/// A command is changed as a form: its parameters are the members "0", "1", ..., its lines of text one text
/// in "lines", the entries that follow it a list in "entries", whether it has a second list stands in "else",
/// and whether a range is that of one thing in "single"; "code" says what it is.
class CommandList
{
public:
    /// @p table outlives the list.
    CommandList(const EventCommands *table, const QJsonArray &entries);

    [[nodiscard]] const QJsonArray &entries() const { return m_entries; }

    [[nodiscard]] int codeAt(int place) const;
    [[nodiscard]] int indentAt(int place) const;

    /// Places of the entries that a person sees: what follows a command is a part of its row.
    [[nodiscard]] QVector<int> rows() const;

    /// Place of the command that the entry belongs to: itself, or the one that it follows or ends.
    [[nodiscard]] int head(int place) const;
    /// Whether a command stands there, and not the end of a list, or what belongs to another command.
    [[nodiscard]] bool isCommand(int place) const;

    /// What a new command with this code looks like; empty for one that is unknown.
    [[nodiscard]] static QJsonObject newForm(const EventCommands &table, int code);
    /// The command that the entry belongs to.
    [[nodiscard]] QJsonObject form(int place) const;
    /// The entry alone as a form, whatever it belongs to.
    [[nodiscard]] QJsonObject formOfEntry(int place) const;

    /// Puts a command with all that belongs to it ahead of the entry, and inside of the list that it begins,
    /// or behind what it ends. Gives the new command's place.
    int insert(int place, const QJsonObject &form);
    /// Gives the command at @p place this form. Lists that it keeps stay as they are; those that it has no
    /// longer go.
    void change(int place, const QJsonObject &form);
    /// Takes the command out with all that belongs to it. Does nothing where there is none.
    void remove(int place);

    /// The command with all that belongs to it, indented from 0; empty where there is none.
    [[nodiscard]] QJsonArray block(int place) const;
    /// Puts a block where insert() puts a command. Gives its place.
    int paste(int place, const QJsonArray &block);

private:
    /// Where something new goes, and how far it is indented.
    struct Spot
    {
        int place;
        int indent;
    };

    void findHeads();
    [[nodiscard]] int behind(int place) const;
    [[nodiscard]] int behindFollowUps(int place) const;
    [[nodiscard]] const EventCommands::Command *commandAt(int place) const;
    [[nodiscard]] Spot spotAt(int place) const;
    [[nodiscard]] QJsonArray slice(int from, int to) const;
    void splice(int from, int to, const QJsonArray &entries);

    const EventCommands *m_table;
    QJsonArray m_entries;
    QVector<int> m_heads;
};
