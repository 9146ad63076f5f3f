#pragma once

#include "tool/LogLine.h"

class JsonWrapper;
class QJsonValue;

/// Begins the warning of the sample translator @p function about the JSON in @p offending; a key may be
/// streamed behind it. Percent signs in the JSON are logged as full-width ones.
LogLine warnSample(const char *function, int number, const char *message, const JsonWrapper &offending);
LogLine warnSample(const char *function, int number, const char *message, const QJsonValue &offending);
