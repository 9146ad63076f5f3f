#include "LocaleText.h"

QString localeText(const QString &locale, const QString &en, const QString &ja, const QString &zh)
{
    if (locale == QLatin1String("ja_JP")) {
        return ja;
    }
    return locale == QLatin1String("zh_CN") ? zh : en;
}
