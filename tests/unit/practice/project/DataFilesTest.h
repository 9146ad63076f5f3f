#pragma once

#include "project/DataFiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

inline const QString kItems = QStringLiteral("data/Items.json");
inline const QString kActors = QStringLiteral("data/Actors.json");
inline const QByteArray kItemsText = "[\n  null,\n  {\"name\": \"Herb\", \"price\": 8.0}\n]\n";

/// A project on the disk.
class Folder
{
public:
    Folder()
    {
        QDir(m_dir.path()).mkdir(QStringLiteral("data"));
        write(kItems, kItemsText);
        write(kActors, "[null]");
    }

    void write(const QString &name, const QByteArray &text) const
    {
        QFile file(m_dir.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(text), qint64(text.size()));
    }
    [[nodiscard]] QByteArray read(const QString &name) const
    {
        QFile file(m_dir.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    [[nodiscard]] QString path(const QString &name = QString()) const
    {
        return name.isEmpty() ? m_dir.path() : m_dir.filePath(name);
    }
    [[nodiscard]] QStringList all() const
    {
        return QDir(m_dir.filePath(QStringLiteral("data")))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

private:
    QTemporaryDir m_dir;
};

/// Where the name of an entry stands in its file.
inline QString name(int entry)
{
    return QStringLiteral("/%1/name").arg(entry);
}

/// Data files, and a project of their own on the disk for each test.
class DataFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<Folder>();
        m_files = std::make_unique<DataFiles>();
        m_error.clear();
    }
    void cleanup()
    {
        m_files.reset();
        m_folder.reset();
    }

protected:
    void open() { QVERIFY2(m_files->open(m_folder->path(), &m_error), qPrintable(m_error)); }

    std::unique_ptr<Folder> m_folder;
    std::unique_ptr<DataFiles> m_files;
    QString m_error;
};
