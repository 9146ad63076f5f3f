#include "tool/JsonWrapper.h"

#include "tool/LogLine.h"

#include <QJsonParseError>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\tool\JsonWrapper.cpp)";

// To take something out lets go of the holder's reference: what is referred to once is changed in place and
// not copied whole, which would make a walk that writes back each of its changes quadratic.

QJsonObject takeObject(QJsonDocument &document)
{
    QJsonObject object = document.object();
    document = QJsonDocument();
    return object;
}

QJsonArray takeArray(QJsonDocument &document)
{
    QJsonArray array = document.array();
    document = QJsonDocument();
    return array;
}

QJsonObject takeObject(QJsonValue &value)
{
    QJsonObject object = value.toObject();
    value = QJsonValue();
    return object;
}

QJsonArray takeArray(QJsonValue &value)
{
    QJsonArray array = value.toArray();
    value = QJsonValue();
    return array;
}

void replace(QJsonArray &array, int index, const QJsonValue &value)
{
    if (index >= 0 && index < array.size()) {
        array.replace(index, value);
    }
}

/// The member @p key, null where there is none: QJsonObject::value() would give an undefined value, which is
/// not null to those who ask.
QJsonValue memberOrNull(const QJsonObject &object, const QString &key)
{
    return object.contains(key) ? object.value(key) : QJsonValue(QJsonValue::Null);
}

/// @p text with the escapes of a JSON string, without the quotes.
QString escaped(const QString &text)
{
    constexpr int kBefore = 7; // bracket, line break, four blanks, quote
    constexpr int kBehind = 4; // quote, line break, bracket, line break
    const QString json = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson());
    return json.mid(kBefore, json.size() - kBefore - kBehind);
}

QString scalarToJson(const QJsonValue &value, QJsonDocument::JsonFormat format)
{
    if (value.isNull()) {
        return QStringLiteral("null");
    }
    const QByteArray bracketed = QJsonDocument(QJsonArray{value}).toJson(format);
    const QByteArray bytes = bracketed.mid(1, bracketed.size() - 2);
    logDebug(kSource, "JsonWrapper::toJson", 468) << bracketed << bytes;
    return QString::fromUtf8(bytes);
}

QString listString(const QVariantList &list)
{
    QStringList elements;
    for (const QVariant &element : list) {
        elements << JsonWrapper::getJsonString(element);
    }
    return QStringLiteral("[ %1 ]").arg(elements.join(QStringLiteral(", ")));
}

QString hashString(const QVariantHash &hash)
{
    QStringList members;
    for (auto it = hash.cbegin(); it != hash.cend(); ++it) {
        // One after the other: a place marker in a key is filled in too.
        const QString keyed = QStringLiteral("%1: %2").arg(JsonWrapper::getJsonString(it.key()));
        members << keyed.arg(JsonWrapper::getJsonString(it.value()));
    }
    return QStringLiteral("{ %1 }").arg(members.join(QStringLiteral(", ")));
}

} // namespace

JsonWrapper::JsonWrapper(const QString &jsonStr)
{
    if (jsonStr.isEmpty()) {
        logWarning(kSource, "JsonWrapper::JsonWrapper", 44) << "jsonStr is empty.";
        m_kind = Kind::kMax;
        m_parseFailed = true;
        return;
    }
    QJsonParseError error;
    m_doc = QJsonDocument::fromJson(jsonStr.toUtf8(), &error);
    if (error.error == QJsonParseError::NoError) {
        return;
    }

    // The parser takes only arrays and objects at the top, so a scalar gets an array around it.
    const QJsonDocument array = QJsonDocument::fromJson(QStringLiteral("[%1]").arg(jsonStr).toUtf8(), &error);
    if (error.error == QJsonParseError::NoError) {
        m_kind = Kind::kValue;
        m_value = array.array().at(0);
        return;
    }
    m_parseFailed = true;
    logWarning(kSource, "JsonWrapper::JsonWrapper", 60)
        << "Json parse error" << int(error.error) << error.offset << error.errorString() << jsonStr;
}

JsonWrapper::JsonWrapper(const QJsonValue &value)
    : m_kind(Kind::kValue)
    , m_value(value)
{
}

JsonWrapper JsonWrapper::operator[](int index)
{
    // Only here does the lookup leave a trace: a missing key comes to be.
    if (m_kind == Kind::kObject) {
        return JsonWrapper(QJsonValue(m_object[QString::number(index)]));
    }
    return std::as_const(*this)[index];
}

JsonWrapper JsonWrapper::operator[](int index) const
{
    switch (m_kind) {
    case Kind::kDoc:
        if (!m_doc.isArray()) {
            errorHandler("[index] is applied for m_doc which is not Array.");
        }
        return JsonWrapper(m_doc.array().at(index));
    case Kind::kArray:
        return JsonWrapper(m_array.at(index));
    case Kind::kObject:
        return JsonWrapper(memberOrNull(m_object, QString::number(index)));
    case Kind::kValue:
        if (m_value.isArray()) {
            return JsonWrapper(m_value.toArray().at(index));
        }
        if (m_value.isObject()) {
            return JsonWrapper(memberOrNull(m_value.toObject(), QString::number(index)));
        }
        errorHandler("[index] is applied for kValue.");
    case Kind::kMax:
        break;
    }
    errorHandler("[index] is applied for kMax.");
}

JsonWrapper JsonWrapper::operator[](const QString &key) const
{
    switch (m_kind) {
    case Kind::kDoc:
        if (!m_doc.isObject()) {
            errorHandler(QStringLiteral("[%1] is applied for m_doc which is not Object.").arg(key));
        }
        return JsonWrapper(memberOrNull(m_doc.object(), key));
    case Kind::kArray:
        errorHandler(QStringLiteral("[%1] is applied for kArray.").arg(key));
    case Kind::kObject:
        if (!m_object.contains(key)) {
            errorHandler(QStringLiteral("m_object doesn't have key: %1").arg(key));
        }
        return JsonWrapper(m_object.value(key));
    case Kind::kValue:
        if (!m_value.isObject()) {
            errorHandler(QStringLiteral("[%1] is applied for kValue.").arg(key));
        }
        return JsonWrapper(memberOrNull(m_value.toObject(), key));
    case Kind::kMax:
        break;
    }
    errorHandler(QStringLiteral("[%1] is applied for kMax.").arg(key));
}

bool JsonWrapper::contains(const QString &key) const
{
    switch (m_kind) {
    case Kind::kDoc:
        if (!m_doc.isObject()) {
            errorHandler("contains() is called for m_doc which is not Object.");
        }
        return m_doc.object().contains(key);
    case Kind::kArray:
        errorHandler("contains() is called for kArray.");
    case Kind::kObject:
        return m_object.contains(key);
    case Kind::kValue:
        if (!m_value.isObject()) {
            errorHandler("contains() is called for kValue.");
        }
        return m_value.toObject().contains(key);
    case Kind::kMax:
        break;
    }
    errorHandler("contains() is called for kMax.");
}

QStringList JsonWrapper::keys() const
{
    switch (m_kind) {
    case Kind::kDoc:
        if (!m_doc.isObject()) {
            errorHandler("keys() is called for m_doc which is not Object.");
        }
        return m_doc.object().keys();
    case Kind::kArray:
        errorHandler("keys() is called for kArray");
    case Kind::kObject:
        return m_object.keys();
    case Kind::kValue:
        if (!m_value.isObject()) {
            errorHandler("keys() is called for kValue.");
        }
        return m_value.toObject().keys();
    case Kind::kMax:
        break;
    }
    errorHandler("keys() is called for kMax.");
}

int JsonWrapper::length() const
{
    switch (m_kind) {
    case Kind::kDoc:
        if (!m_doc.isArray()) {
            errorHandler("length() is called for m_doc which is not Array.");
        }
        return m_doc.array().size();
    case Kind::kArray:
        return m_array.size();
    case Kind::kObject:
        errorHandler("length() is called for kObject.");
    case Kind::kValue:
        if (!m_value.isArray()) {
            errorHandler("length() is called for kValue.");
        }
        return m_value.toArray().size();
    case Kind::kMax:
        break;
    }
    errorHandler("length() is called for kMax.");
}

QJsonArray JsonWrapper::toArray() const
{
    switch (m_kind) {
    case Kind::kDoc:
        if (!m_doc.isArray()) {
            errorHandler("toArray() is called for kDoc.");
        }
        return m_doc.array();
    case Kind::kArray:
        return m_array;
    case Kind::kObject:
        errorHandler("toArray() is called for kObject.");
    case Kind::kValue:
        if (!m_value.isArray()) {
            errorHandler("toArray() is called for kValue.");
        }
        return m_value.toArray();
    case Kind::kMax:
        break;
    }
    errorHandler("toArray() is called for kMax.");
}

QJsonValue JsonWrapper::toValue() const
{
    switch (m_kind) {
    case Kind::kDoc:
        errorHandler("toValue() is called for kDoc.");
    case Kind::kArray:
        errorHandler("toValue() is called for kArray.");
    case Kind::kObject:
        errorHandler("toValue() is called for kObject.");
    case Kind::kValue:
        return m_value;
    case Kind::kMax:
        break;
    }
    errorHandler("toArray() is called for kMax."); // the text that support knows for this case
}

bool JsonWrapper::isArray() const
{
    return m_kind == Kind::kArray || (m_kind == Kind::kDoc && m_doc.isArray()) ||
           (m_kind == Kind::kValue && m_value.isArray());
}

bool JsonWrapper::isObject() const
{
    return m_kind == Kind::kObject || (m_kind == Kind::kDoc && m_doc.isObject()) ||
           (m_kind == Kind::kValue && m_value.isObject());
}

bool JsonWrapper::isNull() const
{
    return (m_kind == Kind::kDoc && m_doc.isNull()) || (m_kind == Kind::kValue && m_value.isNull());
}

bool JsonWrapper::isString() const
{
    return m_kind == Kind::kValue && m_value.isString();
}

bool JsonWrapper::toBool() const
{
    return m_kind == Kind::kValue && m_value.toBool(false);
}

int JsonWrapper::toInt() const
{
    return m_kind == Kind::kValue ? m_value.toInt(0) : 0;
}

JsonWrapper &JsonWrapper::set(const QString &key, const QString &value)
{
    return set(key, QJsonValue(value));
}

JsonWrapper &JsonWrapper::set(const QString &key, const QJsonArray &value)
{
    return set(key, QJsonValue(value));
}

JsonWrapper &JsonWrapper::set(const QString &key, const QJsonValue &value)
{
    switch (m_kind) {
    case Kind::kDoc: {
        if (!m_doc.isObject()) {
            errorHandler("set() is called for kDoc.");
        }
        QJsonObject object = takeObject(m_doc);
        object.insert(key, value);
        m_doc.setObject(object);
        return *this;
    }
    case Kind::kArray:
        errorHandler("set() is called for kArray.");
    case Kind::kObject:
        m_object.insert(key, value);
        return *this;
    case Kind::kValue: {
        if (!m_value.isObject()) {
            errorHandler("set() is called for kValue.");
        }
        QJsonObject object = takeObject(m_value);
        object.insert(key, value);
        m_value = object;
        return *this;
    }
    case Kind::kMax:
        break;
    }
    errorHandler("set() is called for kMax.");
}

JsonWrapper &JsonWrapper::set(int index, const QString &value)
{
    return set(index, QJsonValue(value));
}

JsonWrapper &JsonWrapper::set(int index, const QJsonValue &value)
{
    switch (m_kind) {
    case Kind::kDoc: {
        if (!m_doc.isArray()) {
            errorHandler("set() is called for kDoc.");
        }
        QJsonArray array = takeArray(m_doc);
        replace(array, index, value);
        m_doc.setArray(array);
        return *this;
    }
    case Kind::kArray:
        replace(m_array, index, value);
        return *this;
    case Kind::kObject:
        errorHandler("set() is called for kObject.");
    case Kind::kValue: {
        if (!m_value.isArray()) {
            errorHandler("set() is called for kValue.");
        }
        QJsonArray array = takeArray(m_value);
        replace(array, index, value);
        m_value = array;
        return *this;
    }
    case Kind::kMax:
        break;
    }
    errorHandler("set() is called for kMax.");
}

QString JsonWrapper::toJson(bool indented) const
{
    const QJsonDocument::JsonFormat format = indented ? QJsonDocument::Indented : QJsonDocument::Compact;
    switch (m_kind) {
    case Kind::kDoc:
        return QString::fromUtf8(m_doc.toJson(format));
    case Kind::kArray:
        return QString::fromUtf8(QJsonDocument(m_array).toJson(format));
    case Kind::kObject:
        return QString::fromUtf8(QJsonDocument(m_object).toJson(format));
    case Kind::kValue:
        if (m_value.isArray()) {
            return QString::fromUtf8(QJsonDocument(m_value.toArray()).toJson(format));
        }
        if (m_value.isObject()) {
            return QString::fromUtf8(QJsonDocument(m_value.toObject()).toJson(format));
        }
        return scalarToJson(m_value, format);
    case Kind::kMax:
        break;
    }
    return QString();
}

QString JsonWrapper::toString() const
{
    switch (m_kind) {
    case Kind::kDoc:
        return QStringLiteral("kDoc");
    case Kind::kArray:
        return QStringLiteral("kArray(%1)").arg(m_array.size());
    case Kind::kObject:
        return QStringLiteral("kObject(%1)").arg(m_object.keys().join(QStringLiteral(", ")));
    case Kind::kValue:
        return m_value.toString();
    case Kind::kMax:
        break;
    }
    return QString();
}

QString JsonWrapper::getJsonString(const QVariant &variant)
{
    switch (variant.type()) {
    case QVariant::Bool:
        return variant.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QVariant::Int:
        return QStringLiteral("%1").arg(variant.toInt());
    case QVariant::UInt:
        return QStringLiteral("%1").arg(variant.toUInt());
    case QVariant::LongLong:
        return QStringLiteral("%1").arg(variant.toLongLong());
    case QVariant::ULongLong:
        return QStringLiteral("%1").arg(variant.toULongLong());
    case QVariant::Double:
        return QStringLiteral("%1").arg(variant.toDouble(), 0, 'g');
    case QVariant::String:
        return QStringLiteral("\"%1\"").arg(escaped(variant.toString()));
    case QVariant::List:
        return listString(variant.toList());
    case QVariant::Hash:
        return hashString(variant.toHash());
    default:
        logWarning(kSource, "JsonWrapper::getJsonString", 1206) << "Unknown type" << variant;
        return QString();
    }
}

void JsonWrapper::errorHandler(const QString &message)
{
    logDebug(kSource, "JsonWrapper::errorHandler", 1158) << message;
    throw QString(message);
}

void JsonWrapper::errorHandler(const char *message)
{
    logDebug(kSource, "JsonWrapper::errorHandler", 1158) << message;
    throw QString::fromUtf8(message);
}
