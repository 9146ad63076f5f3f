#pragma once

#include <QJsonValue>
#include <QString>
#include <QVector>

/// What differs between two JSON values, kept without what they have in common, and what makes each of them
/// out of the other.
class JsonDelta
{
public:
    /// Nothing differs.
    JsonDelta() = default;

    /// Either may be undefined.
    [[nodiscard]] static JsonDelta between(const QJsonValue &before, const QJsonValue &after);

    /// The later value, given the earlier one.
    [[nodiscard]] QJsonValue done(const QJsonValue &before) const { return applied(before, Way::kDone); }
    /// The earlier value, given the later one.
    [[nodiscard]] QJsonValue undone(const QJsonValue &after) const { return applied(after, Way::kUndone); }

    /// How many values it keeps, those inside of others counted, too.
    [[nodiscard]] int size() const;

private:
    enum class Kind { kNothing, kWhole, kMembers, kElements, kSlice };
    enum class Way { kDone, kUndone };

    [[nodiscard]] static JsonDelta ofObjects(const QJsonValue &before, const QJsonValue &after);
    [[nodiscard]] static JsonDelta ofArrays(const QJsonValue &before, const QJsonValue &after);
    [[nodiscard]] QJsonValue applied(const QJsonValue &value, Way way) const;

    Kind m_kind = Kind::kNothing;
    /// Of a whole value; of a slice the elements that take each other's place, from the index m_from on.
    QJsonValue m_before;
    QJsonValue m_after;
    int m_from = 0;
    QVector<QString> m_names;
    QVector<int> m_indexes;
    /// Of the members with these names, or the elements with these indexes.
    QVector<JsonDelta> m_children;
};
