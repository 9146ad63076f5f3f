#include "Tutorial/localisation/SampleWarning.h"

#include "tool/JsonWrapper.h"

#include <QJsonValue>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\Tutorial\localisation\SampleTranslators.cpp)";

} // namespace

LogLine warnSample(const char *function, int number, const char *message, const JsonWrapper &offending)
{
    const QString json = offending.toJson().replace(QLatin1Char('%'), QChar(0xFF05));
    LogLine line = logWarning(kSource, function, number);
    line << message << json;
    return line;
}

LogLine warnSample(const char *function, int number, const char *message, const QJsonValue &offending)
{
    return warnSample(function, number, message, JsonWrapper(offending));
}
