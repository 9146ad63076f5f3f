#include "project/JsonDelta.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

/// Where more than one element in so many differs, the array is kept as a whole: that takes less room.
constexpr int kDense = 4;

QJsonArray slice(const QJsonArray &array, int from, int to)
{
    QJsonArray part;
    for (int index = from; index < to; ++index) {
        part.append(array.at(index));
    }
    return part;
}

int sizeOf(const QJsonValue &value)
{
    int size = 1;
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        for (const QJsonValue &element : array) {
            size += sizeOf(element);
        }
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto member = object.begin(); member != object.end(); ++member) {
            size += sizeOf(member.value());
        }
    }
    return size;
}

} // namespace

JsonDelta JsonDelta::between(const QJsonValue &before, const QJsonValue &after)
{
    if (before == after) {
        return {};
    }
    if (before.isObject() && after.isObject()) {
        return ofObjects(before, after);
    }
    if (before.isArray() && after.isArray()) {
        return ofArrays(before, after);
    }
    JsonDelta delta;
    delta.m_kind = Kind::kWhole;
    delta.m_before = before;
    delta.m_after = after;
    return delta;
}

JsonDelta JsonDelta::ofObjects(const QJsonValue &before, const QJsonValue &after)
{
    const QJsonObject old = before.toObject();
    const QJsonObject now = after.toObject();
    JsonDelta delta;
    delta.m_kind = Kind::kMembers;
    const auto add = [&delta, &old, &now](const QString &name) {
        const JsonDelta child = between(old.value(name), now.value(name));
        if (child.m_kind != Kind::kNothing) {
            delta.m_names.append(name);
            delta.m_children.append(child);
        }
    };
    for (auto member = old.begin(); member != old.end(); ++member) {
        add(member.key());
    }
    for (auto member = now.begin(); member != now.end(); ++member) {
        if (!old.contains(member.key())) {
            add(member.key());
        }
    }
    return delta;
}

JsonDelta JsonDelta::ofArrays(const QJsonValue &before, const QJsonValue &after)
{
    const QJsonArray old = before.toArray();
    const QJsonArray now = after.toArray();
    const int oldSize = int(old.size());
    const int nowSize = int(now.size());
    JsonDelta delta;
    if (oldSize == nowSize) {
        delta.m_kind = Kind::kElements;
        for (int index = 0; index < oldSize && delta.m_indexes.size() * kDense <= oldSize + kDense; ++index) {
            const JsonDelta child = between(old.at(index), now.at(index));
            if (child.m_kind != Kind::kNothing) {
                delta.m_indexes.append(index);
                delta.m_children.append(child);
            }
        }
        if (delta.m_indexes.size() * kDense <= oldSize + kDense) {
            return delta;
        }
        delta = JsonDelta();
    }
    const int least = qMin(oldSize, nowSize);
    int from = 0;
    while (from < least && old.at(from) == now.at(from)) {
        ++from;
    }
    int behind = 0;
    while (behind < least - from && old.at(oldSize - behind - 1) == now.at(nowSize - behind - 1)) {
        ++behind;
    }
    delta.m_kind = Kind::kSlice;
    delta.m_from = from;
    delta.m_before = slice(old, from, oldSize - behind);
    delta.m_after = slice(now, from, nowSize - behind);
    return delta;
}

QJsonValue JsonDelta::applied(const QJsonValue &value, Way way) const
{
    const QJsonValue &from = way == Way::kDone ? m_before : m_after;
    const QJsonValue &to = way == Way::kDone ? m_after : m_before;
    switch (m_kind) {
    case Kind::kNothing:
        break;
    case Kind::kWhole:
        return to;
    case Kind::kMembers: {
        QJsonObject object = value.toObject();
        for (int child = 0; child < m_children.size(); ++child) {
            const QString &name = m_names.at(child);
            const QJsonValue member = m_children.at(child).applied(object.value(name), way);
            if (member.isUndefined()) {
                object.remove(name);
            } else {
                object.insert(name, member);
            }
        }
        return object;
    }
    case Kind::kElements: {
        QJsonArray array = value.toArray();
        for (int child = 0; child < m_children.size(); ++child) {
            const int index = m_indexes.at(child);
            array.replace(index, m_children.at(child).applied(array.at(index), way));
        }
        return array;
    }
    case Kind::kSlice: {
        const QJsonArray array = value.toArray();
        QJsonArray changed = slice(array, 0, m_from);
        const QJsonArray inserted = to.toArray();
        for (const QJsonValue &element : inserted) {
            changed.append(element);
        }
        for (int index = m_from + int(from.toArray().size()); index < array.size(); ++index) {
            changed.append(array.at(index));
        }
        return changed;
    }
    }
    return value;
}

int JsonDelta::size() const
{
    int size = m_kind == Kind::kWhole || m_kind == Kind::kSlice ? sizeOf(m_before) + sizeOf(m_after) : 0;
    for (const JsonDelta &child : m_children) {
        size += child.size();
    }
    return size;
}
