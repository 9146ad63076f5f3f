#pragma once

#include <QString>

#include <functional>

/// Gives the translation of a text in a context.
using TranslateText = std::function<QString(const QString &context, const QString &text)>;
