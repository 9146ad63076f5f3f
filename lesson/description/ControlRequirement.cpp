#include "lesson/description/ControlRequirement.h"

#include <QJsonArray>

#include <algorithm>

namespace {

QString str(const char *text)
{
    return QString::fromLatin1(text);
}

QVector<int> readRows(JsonReader &reader)
{
    QVector<int> rows;
    const QJsonArray list = reader.value(str("rows")).toArray();
    for (const QJsonValue &row : list) {
        if (row.toInt(-1) >= 0) {
            rows.append(row.toInt());
        }
    }
    if (rows.isEmpty() || rows.size() != list.size()) {
        reader.addError(str("rows"), str("must be a list of rows, counted from 0"));
    }
    return rows;
}

QVector<QJsonValue> readValues(JsonReader &reader)
{
    QVector<QJsonValue> values;
    const QJsonArray list = reader.value(str("is")).toArray();
    for (const QJsonValue &value : list) {
        values.append(value);
    }
    if (values.isEmpty()) {
        reader.addError(str("is"), str("must be a list of the values that will do"));
    }
    return values;
}

template<typename Values>
bool haveNoneInCommon(const Values &left, const Values &right)
{
    return std::none_of(left.cbegin(), left.cend(),
                        [&right](const auto &value) { return right.contains(value); });
}

bool contradict(const ControlRequirement &left, const ControlRequirement &right)
{
    if (!left.field.isEmpty()) {
        return left.field == right.field && haveNoneInCommon(left.values, right.values);
    }
    return right.field.isEmpty() && left.source == right.source && haveNoneInCommon(left.rows, right.rows);
}

} // namespace

QVector<ControlRequirement> ControlRequirement::read(JsonReader &parent, const QString &field)
{
    QVector<ControlRequirement> requirements;
    QVector<JsonReader> readers = parent.oneOrMoreObjects(field);
    for (JsonReader &reader : readers) {
        ControlRequirement requirement;
        if (reader.has(str("source"))) {
            requirement.source = reader.text(str("source"));
            requirement.rows = readRows(reader);
        } else {
            requirement.field = reader.text(str("field"));
            requirement.values = readValues(reader);
        }
        reader.reportUnknownFields();
        requirements.append(requirement);
    }
    return requirements;
}

bool excludeEachOther(const QVector<ControlRequirement> &left, const QVector<ControlRequirement> &right)
{
    return std::any_of(left.cbegin(), left.cend(), [&right](const ControlRequirement &one) {
        return std::any_of(right.cbegin(), right.cend(),
                           [&one](const ControlRequirement &other) { return contradict(one, other); });
    });
}
