#pragma once

#include <QByteArray>
#include <QString>

#include <string>

/// Whole files, with the reason of a failure in words for the one who runs the tool.
class PatchFiles
{
public:
    PatchFiles() = delete;

    /// Reads the file at @p path into @p text. False, with the reason in @p error and @p text as it was, when
    /// it cannot be read to its end.
    static bool read(const QString &path, std::string &text, QString &error);
    /// Writes @p bytes to @p path whole or not at all. False, with the reason in @p error, when that fails;
    /// what stood there before still does.
    static bool write(const QString &path, const QByteArray &bytes, QString &error);
};
