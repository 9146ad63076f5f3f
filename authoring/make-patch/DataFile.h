#pragma once

#include <QString>

#include <string>

/// What the program expects of a data file.
class DataFile
{
public:
    DataFile() = delete;

    /// Whether @p text is JSON as the program reads it. False, with the place in @p place ("line 2, column
    /// 5") and the reason in @p reason, when it is not.
    static bool isJson(const std::string &text, QString &place, QString &reason);
};
