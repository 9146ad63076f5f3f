#pragma once

#include <QString>

/// Appends @p text as a quoted JSON string to @p json: what JsonWrapper::getJsonString gives for a text, in
/// one pass and without copies, for texts of megabytes. @p text must not hold lone surrogates.
void appendJsonString(QString &json, const QString &text);
