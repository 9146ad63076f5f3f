#pragma once

#include <QString>

/// The plain text of a hint as HTML: every character of it appears literally, a backslash in a fixed-pitch
/// face, and a line feed breaks the line.
[[nodiscard]] QString hintToHtml(const QString &hint);
