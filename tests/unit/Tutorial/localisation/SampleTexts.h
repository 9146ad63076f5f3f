#pragma once

#include "Tutorial/localisation/SampleTranslators.h"
#include "tool/JsonWrapper.h"

#include <QString>

/// Gives "context:text"; gives back what begins with "=", and nothing for what begins with "-".
inline QString sampleTranslation(const QString &context, const QString &text)
{
    if (text.startsWith(QLatin1Char('='))) {
        return text;
    }
    return text.startsWith(QLatin1Char('-')) ? QString() : context + QLatin1Char(':') + text;
}

/// The JSON @p json after one row with @p translator, the context "T" and the keys.
inline QString translatedJson(const QString &translator, const QString &json, const QString &key1 = {},
                              const QString &key2 = {})
{
    JsonWrapper wrapper(json);
    runSampleRows({{translator, QStringLiteral("tutorial"), QStringLiteral("T"), key1, key2}},
                  sampleTranslation, wrapper);
    return wrapper.toJson();
}
