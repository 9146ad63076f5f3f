#pragma once

#include <QString>

/// What has an id and a name.
class NameData
{
public:
    NameData() = default;
    virtual ~NameData() = default;
    NameData(const NameData &) = delete;
    NameData &operator=(const NameData &) = delete;

    virtual void setId(int value) { id = value; }
    virtual void setName(const QString &value) { name = value; }

    int id = -1;
    QString name;
};
