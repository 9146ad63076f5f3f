#pragma once

#include <QString>

/// The one of three texts that belongs to @p locale: English for every locale but ja_JP and zh_CN.
[[nodiscard]] QString localeText(const QString &locale, const QString &en, const QString &ja,
                                 const QString &zh);
