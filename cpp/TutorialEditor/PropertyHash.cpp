#include "TutorialEditor/PropertyHash.h"

void PropertyHash::insert(const QString &key, const QVariant &value)
{
    keys.append(key);
    QHash::insert(key, value);
}

void PropertyHash::remove(const QString &key)
{
    QHash::remove(key);
    const int last = keys.lastIndexOf(key);
    if (last >= 0) {
        keys.removeAt(last);
    }
}

QString PropertyHash::value(const QString &key, const QString &defaultValue) const
{
    const auto found = constFind(key);
    return found == constEnd() ? defaultValue : found->toString();
}
