#pragma once

#include "project/DataLayer.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

/// Where in the data files a control finds what it shows, as its description says it: the file, then member
/// by member. A list in braces stands for the number of the entry that is selected in it:
///
///     data/Items/{items}/price               the price of the item that is selected in the list data/Items
///     data/Map{maps}/displayName             of the file of the selected map, data/Map003.json
///     data/Map{maps}/events/{events}/name    and so on
///
/// In braces stands either a list that the editor has by this name, such as "maps", or the list that the path
/// has led to, by its last word: "items" behind "data/Items". In place of "data" and a file, a path may begin
/// with a root: the name of a place that changes, such as the "entry" that is being edited.
class DataPath
{
public:
    /// Gives the number of the entry that is selected in a list; -1 for none.
    using Numbers = std::function<int(const QString &list)>;

    /// Whether @p text means to be a path: it begins with "data/", or with one of @p roots.
    [[nodiscard]] static bool isPath(const QString &text, const QStringList &roots);

    /// Whether a file with this name is one of the project.
    [[nodiscard]] static bool isFile(const QString &name);

    /// @p lists: names of the lists that the editor has. A first word that is none of @p roots is "data".
    DataPath(const QString &text, const QStringList &lists, const QStringList &roots);

    /// The root that the path begins with; empty for "data".
    [[nodiscard]] const QString &root() const { return m_root; }

    /// What is wrong with the path and how to mend it; empty when nothing is.
    [[nodiscard]] const QString &problem() const { return m_problem; }

    /// The place at present, @p base being that of the root; nothing while one of the lists has no entry
    /// selected.
    [[nodiscard]] std::optional<DataPlace> place(const Numbers &numbers, const DataPlace &base) const;

private:
    struct Word
    {
        /// As it stands, or ahead of the number.
        QString text;
        /// The list whose number it is; empty for a word without one.
        QString list;
    };

    void addWord(const QString &text, const QStringList &lists, const QString &wayThere);

    QString m_root;
    QVector<Word> m_words;
    QString m_problem;
};
