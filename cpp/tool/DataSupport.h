#pragma once

#include <QByteArray>
#include <QFileInfo>
#include <QString>

/// Whole-file access, and two small path functions. Failures are logged as warnings.
class DataSupport
{
public:
    DataSupport() = delete;

    /// Reads the whole file at @p path into @p bytes; true if every byte came. When the file does not open
    /// or @p path is no plain file, @p bytes is untouched; when it ends early, @p bytes holds what came,
    /// filled up with zero bytes to the file's size.
    static bool readFile(const QString &path, QByteArray &bytes);

    /// As above, for the file that @p info names. An entry of a directory that was listed knows already what
    /// kind of file it is, which spares looking at it by its path again.
    static bool readFile(const QFileInfo &info, QByteArray &bytes);

    /// Creates or truncates the file at @p path and writes @p bytes; true if every byte reached the system.
    /// After a failure the file holds what was written up to then.
    static bool writeFile(const QString &path, const QByteArray &bytes);

    /// True for files and directories alike.
    static bool fileExists(const QString &path);

    /// The path of @p name at the root of the resource system.
    static QString resourcePath(const QString &name);
};
