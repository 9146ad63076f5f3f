#pragma once

#include "lesson/description/JsonReader.h"

#include <QJsonValue>

/// Something that has to be so for a control to be there, or to be of use: a field has one of some values, or
/// one of some rows of a source is the current one.
struct ControlRequirement
{
    /// Empty where it is about a source.
    QString field;
    QVector<QJsonValue> values;
    QString source;
    QVector<int> rows;

    /// Reads one requirement or a list of them. What is wrong is added to the errors of @p parent.
    static QVector<ControlRequirement> read(JsonReader &parent, const QString &field);
};

/// Whether two controls with these requirements are never there together.
[[nodiscard]] bool excludeEachOther(const QVector<ControlRequirement> &left,
                                    const QVector<ControlRequirement> &right);
