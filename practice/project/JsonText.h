#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include <optional>

/// JSON as it stands in a file, byte by byte.
namespace JsonText {

struct Problem
{
    /// Counted from 1.
    int line = 0;
    /// In the words of Qt's reader.
    QString reason;
};

/// The list or object that @p text holds; nothing, with the first thing that is wrong, when it holds none.
[[nodiscard]] std::optional<QJsonValue> parse(const QByteArray &text, Problem *problem);

/// @p text, which parse() takes, changed as little as it needs to hold @p value instead: what stays keeps its
/// order, its blanks and the way in which its numbers are written. The same value gives the same bytes.
[[nodiscard]] QByteArray rewritten(const QByteArray &text, const QJsonValue &value);

/// The value in one line, without blanks.
[[nodiscard]] QByteArray compact(const QJsonValue &value);

} // namespace JsonText
