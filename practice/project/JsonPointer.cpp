#include "project/JsonPointer.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

/// The number of the element that @p word names in an array of @p size elements, @p size for the one behind
/// the last; -1 for none.
int indexIn(int size, const QString &word)
{
    if (word == QLatin1String("-")) {
        return size;
    }
    bool isNumber = false;
    const int index = word.toInt(&isNumber);
    // "03" and "+3" are names of members only.
    return isNumber && word == QString::number(index) && index >= 0 && index <= size ? index : -1;
}

const QLatin1String kName("@name");
const QLatin1String kValue("@value");
const QLatin1String kThere("@there");

/// Whether @p word speaks of the member that is the only one of @p object.
bool isOfOnlyMember(const QJsonObject &object, const QString &word)
{
    return (word == kName || word == kValue) && !object.contains(word);
}

QJsonValue ofOnlyMember(const QJsonObject &object, const QString &word)
{
    if (object.size() != 1) {
        return QJsonValue(QJsonValue::Undefined);
    }
    const auto member = object.begin();
    return word == kName ? QJsonValue(member.key()) : QJsonValue(member.value());
}

std::optional<QJsonValue> withOnlyMember(const QJsonObject &object, const QString &word,
                                         const QJsonValue &value)
{
    if (object.size() > 1) {
        return std::nullopt;
    }
    const bool isEmpty = object.isEmpty();
    if (word == kName && !value.toString().isEmpty()) {
        return QJsonObject{{value.toString(), isEmpty ? QJsonValue(0) : QJsonValue(object.begin().value())}};
    }
    if (word == kValue && !isEmpty && !value.isUndefined()) {
        return QJsonObject{{object.begin().key(), value}};
    }
    return std::nullopt;
}

QJsonValue child(const QJsonValue &parent, const QString &word)
{
    if (word == kThere) {
        return !parent.isUndefined();
    }
    if (parent.isObject()) {
        const QJsonObject object = parent.toObject();
        return isOfOnlyMember(object, word) ? ofOnlyMember(object, word) : object.value(word);
    }
    const QJsonArray array = parent.toArray();
    const int index = indexIn(int(array.size()), word);
    return index >= 0 && index < array.size() ? array.at(index) : QJsonValue(QJsonValue::Undefined);
}

std::optional<QJsonValue> withChild(const QJsonValue &parent, const QString &word, const QJsonValue &value)
{
    if (word == kThere) {
        return std::nullopt;
    }
    if (parent.isObject()) {
        QJsonObject object = parent.toObject();
        if (isOfOnlyMember(object, word)) {
            return withOnlyMember(object, word, value);
        }
        if (value.isUndefined()) {
            object.remove(word);
        } else {
            object.insert(word, value);
        }
        return object;
    }
    QJsonArray array = parent.toArray();
    const int index = indexIn(int(array.size()), word);
    if (!parent.isArray() || index < 0) {
        return std::nullopt;
    }
    const bool isThere = index < array.size();
    if (isThere && value.isUndefined()) {
        array.removeAt(index);
    } else if (isThere) {
        array.replace(index, value);
    } else if (!value.isUndefined()) {
        array.append(value);
    }
    return array;
}

enum class Way { kAsItIs, kMade };

std::optional<QJsonValue> withAt(const QJsonValue &root, const QStringList &words, int depth,
                                 const QJsonValue &value, Way way)
{
    if (depth == words.size()) {
        return value;
    }
    const QString &word = words.at(depth);
    const bool isLast = depth + 1 == words.size();
    QJsonValue old = child(root, word);
    if (!isLast && way == Way::kMade && root.isObject() && (old.isUndefined() || old.isNull())) {
        old = QJsonObject();
    }
    if (!isLast && old.isUndefined()) {
        return std::nullopt;
    }
    const std::optional<QJsonValue> changed = withAt(old, words, depth + 1, value, way);
    return changed ? withChild(root, word, *changed) : std::nullopt;
}

} // namespace

namespace JsonPointer {

std::optional<QStringList> words(const QString &pointer)
{
    if (pointer.isEmpty()) {
        return QStringList();
    }
    if (!pointer.startsWith(QLatin1Char('/'))) {
        return std::nullopt;
    }
    QStringList words = pointer.mid(1).split(QLatin1Char('/'));
    for (QString &word : words) {
        for (int at = int(word.indexOf(QLatin1Char('~'))); at >= 0;
             at = int(word.indexOf(QLatin1Char('~'), at + 1))) {
            const QString escape = word.mid(at, 2);
            if (escape != QLatin1String("~0") && escape != QLatin1String("~1")) {
                return std::nullopt;
            }
            word.replace(at, 2, escape == QLatin1String("~0") ? QLatin1Char('~') : QLatin1Char('/'));
        }
    }
    return words;
}

QString escaped(const QString &word)
{
    QString text = word;
    text.replace(QLatin1Char('~'), QLatin1String("~0"));
    return text.replace(QLatin1Char('/'), QLatin1String("~1"));
}

QJsonValue value(const QJsonValue &root, const QString &pointer)
{
    const std::optional<QStringList> way = words(pointer);
    if (!way) {
        return QJsonValue(QJsonValue::Undefined);
    }
    QJsonValue found = root;
    for (const QString &word : *way) {
        found = child(found, word);
    }
    return found;
}

std::optional<QJsonValue> with(const QJsonValue &root, const QString &pointer, const QJsonValue &value)
{
    const std::optional<QStringList> way = words(pointer);
    return way ? withAt(root, *way, 0, value, Way::kAsItIs) : std::nullopt;
}

std::optional<QJsonValue> withWay(const QJsonValue &root, const QString &pointer, const QJsonValue &value)
{
    const std::optional<QStringList> way = words(pointer);
    return way ? withAt(root, *way, 0, value, Way::kMade) : std::nullopt;
}

} // namespace JsonPointer
