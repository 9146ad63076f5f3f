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

    bool operator==(const Row &other) const
    {
        return text == other.text && number == other.number && level == other.level && tile == other.tile;
    }
};

/// Where lists get their rows from, by name. A list in a data file needs no entry here: its path, such as
/// "data/Items", is its name, and its rows are the names of its entries.
class RowSources
{
public:
    using Rows = std::function<QVector<Row>(const DataLayer &)>;
    using Current = std::function<int()>;
    using SetCurrent = std::function<void(int row)>;

    /// Which row is the current one is kept in the layer.
    void add(const QString &name, Rows rows);
    /// Which row is the current one is kept elsewhere: @p current gives it, -1 for none.
    void add(const QString &name, Rows rows, Current current, SetCurrent setCurrent);

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
    [[nodiscard]] std::optional<DataPath::Place> place(const QString &path, const DataLayer &layer) const;

private:
    struct Source
    {
        Rows rows;
        Current current;
        SetCurrent setCurrent;
    };

    QMap<QString, Source> m_sources;
};
