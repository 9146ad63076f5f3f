#pragma once

#include <QString>

// What stands around the items in a scenario file. Each of these is one pass over the text.

/// @p text without its block comments, those inside strings among them. A comment without an end, and all
/// behind it, stays; what a cut brings together can be a comment again.
[[nodiscard]] QString withoutBlockComments(const QString &text);

/// @p text without the lines that hold nothing but a comment that begins with two slashes. A comment behind
/// something else stays, and so does a last line without a line feed.
[[nodiscard]] QString withoutLineComments(const QString &text);

/// @p text with its head "var scenario = [" and the first "];" made the brackets of a plain array; what is
/// not there is left alone.
[[nodiscard]] QString scenarioArray(const QString &text);
