#include "host/JsonChange.h"

#include <QJsonArray>

namespace {

// The members of a change, each there if it says something: those of the object that are gone, those that
// have another value, and those whose value is an object in which something changes.
const QLatin1String kGone("gone");
const QLatin1String kSet("set");
const QLatin1String kIn("in");

} // namespace

QJsonObject JsonChange::between(const QJsonObject &before, const QJsonObject &after)
{
    QJsonArray gone;
    QJsonObject set;
    QJsonObject in;
    for (auto member = before.constBegin(); member != before.constEnd(); ++member) {
        if (!after.contains(member.key())) {
            gone.append(member.key());
        }
    }
    for (auto member = after.constBegin(); member != after.constEnd(); ++member) {
        const QJsonValue was = before.value(member.key());
        const QJsonValue is = member.value();
        if (was == is) {
            continue;
        }
        if (was.isObject() && is.isObject()) {
            in.insert(member.key(), between(was.toObject(), is.toObject()));
        } else {
            set.insert(member.key(), is);
        }
    }
    QJsonObject change;
    if (!gone.isEmpty()) {
        change.insert(kGone, gone);
    }
    if (!set.isEmpty()) {
        change.insert(kSet, set);
    }
    if (!in.isEmpty()) {
        change.insert(kIn, in);
    }
    return change;
}

QJsonObject JsonChange::applied(const QJsonObject &before, const QJsonObject &change)
{
    QJsonObject after = before;
    const QJsonArray gone = change.value(kGone).toArray();
    for (const QJsonValue &name : gone) {
        after.remove(name.toString());
    }
    const QJsonObject set = change.value(kSet).toObject();
    for (auto member = set.constBegin(); member != set.constEnd(); ++member) {
        after.insert(member.key(), member.value());
    }
    const QJsonObject in = change.value(kIn).toObject();
    for (auto member = in.constBegin(); member != in.constEnd(); ++member) {
        after.insert(member.key(), applied(after.value(member.key()).toObject(), member.value().toObject()));
    }
    return after;
}
