#pragma once

#include "project/Commands.h"
#include "project/Fields.h"
#include "project/StartData.h"
#include "project/StateParts.h"
#include "project/events/CommandList.h"

/// What windows do with lists of event commands, whichever data file holds them: "commands.of PATH" says
/// which list is edited from here on, and a command is changed as a form, the root "command" of paths, until
/// it is accepted.
class CommandWords
{
public:
    /// Both outlive the words.
    CommandWords(const StartData *start, const RowSources *sources);

    void addTo(Commands &commands, Fields &fields, RowSources &sources);
    /// What was copied.
    void addTo(StateParts &states);

private:
    void addForms(Commands &commands, Fields &fields, RowSources &sources);
    void addChoice(RowSources &sources);

    [[nodiscard]] QVector<Row> rows(const QString &path, const DataLayer &layer) const;
    /// @p path is that of the list.
    [[nodiscard]] QString rowText(const CommandList &list, int place, const QString &path,
                                  const DataLayer &layer) const;

    void addEnemies(RowSources &sources);

    [[nodiscard]] QVector<Row> goods(const DataLayer &layer) const;

    /// The list that is edited, as the path that was given, and where that leads.
    [[nodiscard]] static QString path(const DataLayer &layer);
    [[nodiscard]] CommandList list(const DataLayer &layer) const;
    void setList(const CommandList &list, int selected, DataLayer &layer) const;
    /// Place of the selected entry; -1 for none.
    [[nodiscard]] int selected(const DataLayer &layer) const;
    [[nodiscard]] QString kind(const DataLayer &layer) const;
    /// Code of the command that is chosen among those of a tab; 0 for none.
    [[nodiscard]] int chosenCode(const DataLayer &layer) const;
    void accept(DataLayer &layer) const;

    const StartData *m_start;
    const RowSources *m_sources;
    /// What was copied last.
    QJsonArray m_copied;
};
