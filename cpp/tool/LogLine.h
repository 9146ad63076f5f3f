#pragma once

#include <QDebug>

/// Starts a line of the debug log: the source label, the qualified function name and the number of the
/// message, then whatever the caller streams behind it.
///
/// The numbers are identifiers that support staff search for. They belong to the message, are unique within
/// their function and never follow the source.
inline QDebug logDebug(const char *source, const char *function, int number)
{
    QDebug line = qDebug();
    line << source << function << number;
    return line;
}

/// As logDebug, for the warning stream.
inline QDebug logWarning(const char *source, const char *function, int number)
{
    QDebug line = qWarning();
    line << source << function << number;
    return line;
}
