#pragma once

#include "LogCapture.h"
#include "tool/JsonWrapper.h"

#include <QHash>
#include <QMetaType>

#include <functional>
#include <optional>

/// Makes the two kinds that no constructor gives.
class BareWrapper : public JsonWrapper
{
public:
    explicit BareWrapper(const QJsonArray &array)
        : JsonWrapper(QJsonValue())
    {
        m_kind = Kind::kArray;
        m_array = array;
    }
    explicit BareWrapper(const QJsonObject &object)
        : JsonWrapper(QJsonValue())
    {
        m_kind = Kind::kObject;
        m_object = object;
    }
};

/// Test data has to have an empty state.
using Wrapper = std::optional<JsonWrapper>;

Q_DECLARE_METATYPE(Wrapper)

/// How the log lines of the wrapper begin.
inline QString messageSource()
{
    return QStringLiteral("..\\..\\tutorial\\cpp\\tool\\JsonWrapper.cpp");
}

inline QJsonArray sampleArray()
{
    return {QStringLiteral("zero"), 1, true, QJsonValue::Null};
}

inline QJsonObject sampleObject()
{
    return {{QStringLiteral("3"), QStringLiteral("three")},
            {QStringLiteral("b"), 2},
            {QStringLiteral("a"), QJsonValue::Null}};
}

inline JsonWrapper parsed(const char *json)
{
    return JsonWrapper(QString::fromUtf8(json));
}

/// A wrapper of the kind and content that @p name says.
inline JsonWrapper sample(const QString &name)
{
    static const QHash<QString, std::function<JsonWrapper()>> samples{
        {QStringLiteral("doc array"),
         [] {
             return parsed(R"(["zero", 1, true, null])");
         }},
        {QStringLiteral("doc object"),
         [] {
             return parsed(R"({"3": "three", "b": 2, "a": null})");
         }},
        {QStringLiteral("array"),
         [] {
             return BareWrapper(sampleArray());
         }},
        {QStringLiteral("object"),
         [] {
             return BareWrapper(sampleObject());
         }},
        {QStringLiteral("value array"),
         [] {
             return JsonWrapper(QJsonValue(sampleArray()));
         }},
        {QStringLiteral("value object"),
         [] {
             return JsonWrapper(QJsonValue(sampleObject()));
         }},
        {QStringLiteral("value string"),
         [] {
             return JsonWrapper(QJsonValue(QStringLiteral("text")));
         }},
        {QStringLiteral("value null"),
         [] {
             return JsonWrapper(QJsonValue());
         }},
        {QStringLiteral("max"),
         [] {
             return JsonWrapper(QString());
         }},
    };
    LogCapture quiet; // the empty text warns
    return samples.value(name)();
}
