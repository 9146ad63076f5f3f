#include "Tutorial/localisation/Languages.h"

#include "SystemService/SystemService.h"
#include "Tutorial/localisation/Translators.h"
#include "tool/LogLine.h"
#include "tool/LogSource.h"

#include <QCoreApplication>

namespace {

constexpr const char *kSource = LogSource::kTutorialManager;

QString english()
{
    return QStringLiteral("en_US");
}

QString japanese()
{
    return QStringLiteral("ja_JP");
}

/// Installs the catalogue of @p locale, and a translator without texts when there is none.
void install(const QString &locale, const char *function, int number)
{
    const LoadedTranslator loaded = loadTranslator(locale, QCoreApplication::instance());
    logDebug(kSource, function, number) << QLatin1String(":/translations/") + locale << loaded.loaded;
    QCoreApplication::installTranslator(loaded.translator);
}

} // namespace

Languages::Languages(QObject *parent)
    : QObject(parent)
    , m_locale(SystemService::getDebugLocale())
    , m_locale2(m_locale == japanese() ? english() : japanese())
{
}

void Languages::setLocale(const QString &locale)
{
    if (m_locale == locale) {
        return;
    }
    logDebug(kSource, "TutorialManager::setLocale", 2204) << locale;
    SystemService::setDebugLocale(locale);
    const QString oldLocale = m_locale;
    m_locale = locale;
    Q_EMIT fontLocaleChanged(locale);
    setLocale2(oldLocale);
    install(locale, "TutorialManager::setLocale", 2215);
    Q_EMIT localeChanged();
}

void Languages::setLocale2(const QString &locale)
{
    if (m_locale2 != locale) {
        logDebug(kSource, "TutorialManager::setLocale2", 2226) << locale;
        m_locale2 = locale;
        Q_EMIT locale2Changed();
    }
}

void Languages::greet(const QString &locale)
{
    const bool isNamed = !locale.isEmpty() && locale != QLatin1String("-");
    if (isNamed) {
        Q_EMIT fontLocaleChanged(locale);
    }
    install(isNamed ? locale : english(), "TutorialManager::onReceived", 921);
}
