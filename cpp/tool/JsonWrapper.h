#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVariant>

/// Navigator over one JSON thing: a parsed document, or a value reached from one.
///
/// A value type. A wrapper got through `[ ]` is a copy: an edit of it does not reach the wrapper that it came
/// from, so who changes something deep writes each level back with set(), innermost first.
///
/// An operation that the kind does not allow logs a debug line and throws a QString with the reason; the
/// predicates and contains() are the way to ask first.
class JsonWrapper
{
public:
    enum class Kind { kDoc = 0, kArray = 1, kObject = 2, kValue = 3, kMax = 4 };

    /// Parses @p jsonStr: an array or object gives kDoc, a lone scalar gives kValue. Empty text gives kMax,
    /// text that is no JSON a kDoc with a null document; both log a warning and set parseFailed().
    explicit JsonWrapper(const QString &jsonStr);
    explicit JsonWrapper(const QJsonValue &value);

    [[nodiscard]] Kind kind() const { return m_kind; }
    /// True when the text that this wrapper was made from was empty or no JSON.
    [[nodiscard]] bool parseFailed() const { return m_parseFailed; }

    /// The array element at @p index; an object that is a value or kObject is asked for the decimal text of
    /// @p index as key. An index that the array does not have gives an undefined value. On a kObject without
    /// that key the non-constant form inserts a null under it.
    JsonWrapper operator[](int index);
    JsonWrapper operator[](int index) const;
    /// The member @p key; a null value where a document or value has no such member.
    JsonWrapper operator[](const QString &key) const;

    [[nodiscard]] bool contains(const QString &key) const;
    /// The keys of an object, in ascending order.
    [[nodiscard]] QStringList keys() const;
    /// The number of elements of an array.
    [[nodiscard]] int length() const;
    [[nodiscard]] QJsonArray toArray() const;
    /// What a kValue holds; every other kind throws.
    [[nodiscard]] QJsonValue toValue() const;

    // These never throw.
    [[nodiscard]] bool isArray() const;
    [[nodiscard]] bool isObject() const;
    [[nodiscard]] bool isNull() const;
    [[nodiscard]] bool isString() const;
    /// False and 0 unless this is a kValue that holds a boolean or a whole number.
    [[nodiscard]] bool toBool() const;
    [[nodiscard]] int toInt() const;

    /// Overwrites or inserts the member @p key. All set() return this wrapper.
    JsonWrapper &set(const QString &key, const QString &value);
    JsonWrapper &set(const QString &key, const QJsonArray &value);
    JsonWrapper &set(const QString &key, const QJsonValue &value);
    /// Overwrites the element at @p index, which must exist: no element is ever added, and an index outside
    /// the array changes nothing.
    JsonWrapper &set(int index, const QString &value);
    JsonWrapper &set(int index, const QJsonValue &value);

    /// The JSON text. A scalar in indented form keeps the line breaks and the indent around it.
    [[nodiscard]] QString toJson(bool indented = false) const;
    /// The plain text of a string value, a short description of a document, array or object, otherwise empty.
    [[nodiscard]] QString toString() const;

    /// The text notation of @p variant in scenario items: booleans, whole numbers, doubles, strings, and
    /// lists and hashes of these. Members of a hash stand in its iteration order. Any other type, QVariantMap
    /// and QStringList among them, logs a warning and gives empty text.
    [[nodiscard]] static QString getJsonString(const QVariant &variant);

    /// Logs @p message and throws it.
    [[noreturn]] static void errorHandler(const QString &message);
    [[noreturn]] static void errorHandler(const char *message);

protected:
    // Only the member that belongs to the kind means anything; the others are empty.
    Kind m_kind = Kind::kDoc;
    QJsonDocument m_doc;
    QJsonArray m_array;
    QJsonObject m_object;
    QJsonValue m_value;
    bool m_parseFailed = false;
};
