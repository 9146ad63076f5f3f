#pragma once

#include "project/RowSources.h"

#include <QVariant>

/// Texts, numbers and states that controls show and change, by name. What stands in a data file needs no
/// entry here: its path, such as "data/Items/{items}/price", is its name.
class Fields
{
public:
    using Read = std::function<QVariant(const DataLayer &)>;
    using Write = std::function<void(DataLayer &, const QVariant &value)>;

    /// @p sources outlive the fields.
    explicit Fields(const RowSources *sources);

    /// A field without @p write can only be shown.
    void add(const QString &name, Read read, Write write = {});

    [[nodiscard]] QStringList names() const { return m_fields.keys(); }
    /// What is wrong with the name and how to mend it; empty when nothing is.
    [[nodiscard]] QString problemOf(const QString &name) const;

    /// Invalid when there is no such thing at present.
    [[nodiscard]] QVariant value(const QString &name, const DataLayer &layer) const;
    /// Members that are missing on the way of a path are made.
    /// An invalid @p value takes away the member.
    void setValue(const QString &name, const QVariant &value, DataLayer &layer) const;
    /// Gives the field what @p row stands for. Where that is the name of an entry's only member, and the row
    /// says what it starts with, a new name begins with that: what the old one held means something else.
    void choose(const QString &name, const Row &row, DataLayer &layer) const;

private:
    struct Field
    {
        Read read;
        Write write;
    };

    const RowSources *m_sources;
    QMap<QString, Field> m_fields;
};
