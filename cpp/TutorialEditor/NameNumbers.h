#pragma once

#include <QString>

#include <optional>

/// For uniqueName: a number in brackets even when the base itself is free.
constexpr int kAlwaysBracket = -2;

/// The number behind @p base in @p name when nothing but decimal digits stands there, as in folder007.
[[nodiscard]] std::optional<int> suffixNumber(const QString &name, const QString &base);
/// The number in brackets behind @p base in @p name, as in Intro(2), in the form in which it is written.
[[nodiscard]] std::optional<int> bracketNumber(const QString &name, const QString &base);

/// @p base with the number above @p highest, filled up with zeros to @p digits places.
[[nodiscard]] QString numberedName(const QString &base, int highest, int digits);
/// @p base with the number above @p highest in brackets.
[[nodiscard]] QString bracketedName(const QString &base, int highest);
