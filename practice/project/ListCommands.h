#pragma once

#include "project/Commands.h"
#include "project/Fields.h"
#include "project/StateParts.h"

class QJsonArray;

/// What can be done with the entries of any list in the data files. The list is named by its path; what is
/// done with an entry is done with the one that is selected in it, and is one step of the history.
///
/// In a list whose first entry is null the others are known by their numbers, which never change: new ones
/// come last, and one that is removed becomes an empty one with the same members, or goes if it
/// is that already and the last. There are at most kMost of them.
class ListCommands
{
public:
    /// @p sources outlive the commands.
    explicit ListCommands(const RowSources *sources);

    static constexpr int kMost = 999;

    /// Adds the commands "list.", the fields "list.count", "list.lost" (how many entries with something in
    /// them go when that many are left) and "list.loses" (whether any do), and the roots "entry" and
    /// "counted".
    void addTo(Commands &commands, Fields &fields, RowSources &sources);
    /// What was copied.
    void addTo(StateParts &states);

private:
    /// A list as it is at present, and where it stands.
    struct List;
    using Change = void (ListCommands::*)(List &list, const CommandCall &call, DataLayer &layer);
    using Can = bool (ListCommands::*)(const List &list) const;

    void addCommand(Commands &commands, const char *name, Change change, Can can);
    [[nodiscard]] std::optional<List> list(const QString &path, const DataLayer &layer) const;
    /// Gives the data what @p list holds now, and selects the entry @p number in it.
    void write(const List &list, int number, DataLayer &layer) const;

    void add(List &list, const CommandCall &call, DataLayer &layer);
    void addApart(List &list, const CommandCall &call, DataLayer &layer);
    void remove(List &list, const CommandCall &call, DataLayer &layer);
    void copy(List &list, const CommandCall &call, DataLayer &layer);
    void paste(List &list, const CommandCall &call, DataLayer &layer);
    void moveUp(List &list, const CommandCall &call, DataLayer &layer);
    void moveDown(List &list, const CommandCall &call, DataLayer &layer);
    void edit(List &list, const CommandCall &call, DataLayer &layer);
    void count(List &list, const CommandCall &call, DataLayer &layer);
    void resize(List &list, const CommandCall &call, DataLayer &layer);

    /// How many entries with something in them are behind the first m_count of the list that "list.count"
    /// named.
    [[nodiscard]] int lost(const DataLayer &layer) const;

    [[nodiscard]] bool isThere(const List &list) const;
    [[nodiscard]] bool canAdd(const List &list) const;
    [[nodiscard]] bool hasEntry(const List &list) const;
    [[nodiscard]] bool canPaste(const List &list) const;
    [[nodiscard]] bool canMoveUp(const List &list) const;
    [[nodiscard]] bool canMoveDown(const List &list) const;

    const RowSources *m_sources;
    /// What was copied, and the kind of list that it was copied from: an entry goes only into its like.
    QJsonValue m_copied = QJsonValue::Undefined;
    QString m_copiedFrom;
    /// How many entries there are to be after "list.resize".
    int m_count = 0;
};
