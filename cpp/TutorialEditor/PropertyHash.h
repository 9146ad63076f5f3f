#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

/// Named properties that remember the order in which they came. Two of them are equal when they hold the same
/// properties, in whatever order.
class PropertyHash : public QHash<QString, QVariant>
{
public:
    PropertyHash() = default;
    PropertyHash(const PropertyHash &) = default;
    PropertyHash &operator=(const PropertyHash &) = default;
    virtual ~PropertyHash() = default;

    /// Sets @p key, also when it is there already; every call adds to keys.
    void insert(const QString &key, const QVariant &value);
    /// Takes out @p key, and its last mention in keys.
    virtual void remove(const QString &key);
    /// The value of @p key as text; @p defaultValue when there is no such property.
    [[nodiscard]] QString value(const QString &key, const QString &defaultValue) const;

    /// The keys as they were inserted, oldest first.
    QStringList keys;
};
