#pragma once

#include <QLatin1String>
#include <QString>

/// The source text @p text of a script that gives a list the name @p name, as a plain array: the first
/// "var NAME = [" becomes "[" and the first "];" becomes "]". What is not there is left alone.
[[nodiscard]] QString sourceArray(QString text, QLatin1String name);
