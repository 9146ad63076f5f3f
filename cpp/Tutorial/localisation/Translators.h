#pragma once

#include <QString>

class QObject;
class QTranslator;

/// A translator and whether its catalogue was found.
struct LoadedTranslator
{
    QTranslator *translator; ///< Never null, owned by the parent that was given to loadTranslator.
    bool loaded;
};

/// Makes a translator with the catalogue of @p locale from ":/translations". It is not installed: callers log
/// the result and install it with QCoreApplication::installTranslator, whether or not the catalogue was
/// found. @p locale may be any text: nothing outside ":/" is read.
[[nodiscard]] LoadedTranslator loadTranslator(const QString &locale, QObject *parent);
