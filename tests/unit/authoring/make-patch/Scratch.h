#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryDir>

/// A directory of its own for one test, with files put into it and read from it by their relative paths.
class Scratch
{
public:
    Scratch()
    {
        if (!m_directory.isValid()) {
            qFatal("no directory to test in: %s", qPrintable(m_directory.errorString()));
        }
    }

    [[nodiscard]] QString path() const { return m_directory.path(); }
    [[nodiscard]] QString path(const char *relative) const
    {
        return m_directory.filePath(QString::fromUtf8(relative));
    }

    void put(const char *relative, const QByteArray &bytes) const
    {
        QFile file(path(relative));
        if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly) ||
            file.write(bytes) != bytes.size()) {
            qFatal("cannot write %s: %s", relative, qPrintable(file.errorString()));
        }
    }
    [[nodiscard]] QByteArray get(const char *relative) const
    {
        QFile file(path(relative));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
    }
    [[nodiscard]] bool has(const char *relative) const { return QFileInfo::exists(path(relative)); }
    /// The names of all that stands directly in the directory @p relative, in order.
    [[nodiscard]] QStringList entries(const char *relative = "") const
    {
        return QDir(path(relative))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

private:
    QTemporaryDir m_directory;
};
