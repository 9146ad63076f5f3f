#pragma once

#include "project/DataLayer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

inline QString str(const char *text)
{
    return QString::fromUtf8(text);
}

inline QJsonValue json(const char *text)
{
    return QJsonDocument::fromJson('[' + QByteArray(text) + ']').array().at(0);
}

/// Files that are nowhere on a disk.
class Files : public DataLayer
{
public:
    Files()
        : DataLayer(nullptr)
    {
    }
    [[nodiscard]] QJsonValue file(const QString &name) const override
    {
        return m_files.value(name, QJsonValue(QJsonValue::Undefined));
    }
    void change(const DataRoots &files, const QString &mergeKey) override
    {
        for (auto file = files.begin(); file != files.end(); ++file) {
            m_files.insert(file.key(), file.value());
        }
        mergeKeys.append(mergeKey);
    }
    void accept() override {}

    void put(const char *name, const char *text) { m_files.insert(str(name), json(text)); }

    /// That of each change.
    QStringList mergeKeys;

private:
    DataRoots m_files;
};
