#include "Tutorial/localisation/Translators.h"

#include <QDir>
#include <QTranslator>

namespace {

// No catalogue has a longer name.
constexpr int kLongestName = 64;

} // namespace

LoadedTranslator loadTranslator(const QString &locale, QObject *parent)
{
    auto *translator = new QTranslator(parent);
    // Null delimiters and a null suffix stand for the defaults, so that "en_US" finds the file "en_US.qm".
    // An absolute path would be read from where it points to. Of a name that it does not find, the translator
    // tries one shorter form after the other, for hours when a host sends a name of megabytes.
    const bool loaded =
        QDir::isRelativePath(locale) &&
        translator->load(locale.left(kLongestName), QStringLiteral(":/translations"), QString(), QString());
    return {translator, loaded};
}
