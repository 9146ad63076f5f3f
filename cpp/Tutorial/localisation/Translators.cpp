#include "Tutorial/localisation/Translators.h"

#include <QTranslator>

LoadedTranslator loadTranslator(const QString &locale, QObject *parent)
{
    auto *translator = new QTranslator(parent);
    // Null delimiters and a null suffix stand for the defaults, so that "en_US" finds the file "en_US.qm".
    const bool loaded = translator->load(locale, QStringLiteral(":/translations"), QString(), QString());
    return {translator, loaded};
}
