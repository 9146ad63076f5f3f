#pragma once

#include "project/DataLayer.h"
#include "project/DataPath.h"

#include <QVector>

/// One row of a list that a window shows.
struct Row
{
    QString text;
    /// Of the entry in its list.
    int number = 0;
    /// Depth in a tree, 0 at the top.
    int level = 0;
    /// Number of the tile to draw before the text; -1 for none.
    int tile = -1;
    /// What a field gets when the row is chosen for it; undefined for the number.
    QJsonValue value = QJsonValue::Undefined;
    /// What an entry with one member holds when the row becomes its name; undefined where it keeps what it
    /// holds.
    QJsonValue start = QJsonValue::Undefined;

    [[nodiscard]] QJsonValue chosen() const { return value.isUndefined() ? QJsonValue(number) : value; }

    bool operator==(const Row &other) const
    {
        return text == other.text && number == other.number && level == other.level && tile == other.tile &&
               value == other.value;
    }
};

/// What a list shows of an entry without a name, as the database does where it has its number before the
/// name.
[[nodiscard]] QString namelessText(int number);

/// Where lists get their rows from, by name. A list in a data file needs no entry here: its path, such as
/// "data/Items", is its name, and its rows are the names of its entries; those that are null have none.
class RowSources
{
public:
    using Rows = std::function<QVector<Row>(const DataLayer &)>;
    using RowsOf = std::function<QVector<Row>(const QString &argument, const DataLayer &)>;
    using Current = std::function<int()>;
    using SetCurrent = std::function<void(int row)>;
    using CurrentIn = std::function<int(const DataLayer &)>;
    using SetCurrentIn = std::function<void(int row, DataLayer &)>;
    using Root = std::function<std::optional<DataPlace>(const DataLayer &)>;

    /// Which row is the current one is kept in the layer.
    void add(const QString &name, Rows rows);
    /// Which row is the current one is kept elsewhere: @p current gives it, -1 for none.
    void add(const QString &name, Rows rows, Current current, SetCurrent setCurrent);
    /// Which row is the current one follows from what the layer holds.
    void add(const QString &name, Rows rows, CurrentIn current, SetCurrentIn setCurrent);
    /// Lists that have an argument behind a blank, such as the path of what they show: "commands data/...".
    /// Which row is the current one is kept in the layer, for each argument.
    void addFamily(const QString &name, const RowsOf &rows);
    /// A list that is @p count tabs, of which the layer keeps the current one. A name that is there stays
    /// what it is.
    void addTabs(const QString &name, int count);

    /// Lets paths begin with @p name: @p root gives the place that it stands for at present, nothing for
    /// none.
    void addRoot(const QString &name, const Root &root);
    /// Whether @p text is a path: it begins with "data/" or with a root, and no list has it as its name.
    [[nodiscard]] bool isPath(const QString &text) const;

    [[nodiscard]] QStringList names() const { return m_sources.keys(); }
    /// What is wrong with the name and how to mend it; empty when nothing is.
    [[nodiscard]] QString problemOf(const QString &name) const;

    [[nodiscard]] QVector<Row> rows(const QString &name, const DataLayer &layer) const;
    /// -1 when the list is empty. Where the selected entry is gone, the one before it takes its place.
    [[nodiscard]] int currentRow(const QString &name, const DataLayer &layer) const;
    void setCurrentRow(const QString &name, int row, DataLayer &layer) const;

    /// Number of the entry that is selected; -1 when the list is empty.
    [[nodiscard]] int number(const QString &name, const DataLayer &layer) const;

    /// The place that a path means at present in @p layer; nothing when it means none.
    [[nodiscard]] std::optional<DataPlace> place(const QString &path, const DataLayer &layer) const;
    /// What is wrong with the path and how to mend it; empty when nothing is.
    [[nodiscard]] QString problemOfPath(const QString &path) const;

    /// The entry with this number in the list that a path leads to; undefined when there is none, and for the
    /// editor's own lists.
    [[nodiscard]] QJsonValue entry(const QString &path, int number, const DataLayer &layer) const;

private:
    struct Source
    {
        Rows rows;
        CurrentIn current;
        SetCurrentIn setCurrent;
    };

    /// The path, which is read once and kept.
    [[nodiscard]] DataPath way(const QString &path) const;

    /// The argument of a list of a family; nothing for another list.
    [[nodiscard]] std::optional<QString> argumentOf(const QString &name) const;

    QMap<QString, Source> m_sources;
    QMap<QString, RowsOf> m_families;
    QMap<QString, Root> m_roots;
    mutable QHash<QString, DataPath> m_ways;
};
