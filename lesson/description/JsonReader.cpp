#include "lesson/description/JsonReader.h"

#include "lesson/LessonWords.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <utility>

JsonReader::JsonReader(JsonPlace place, QStringList *errors)
    : m_from(std::move(place))
    , m_errors(errors)
{
}

std::optional<JsonReader> JsonReader::open(const QString &path, QStringList *errors)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        errors->append(QStringLiteral("%1: cannot be read (%2)").arg(path, file.errorString()));
        return std::nullopt;
    }
    const QByteArray bytes = file.readAll();
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &problem);
    if (problem.error != QJsonParseError::NoError) {
        errors->append(QStringLiteral("%1: line %2: %3")
                           .arg(path)
                           .arg(bytes.left(problem.offset).count('\n') + 1)
                           .arg(problem.errorString()));
        return std::nullopt;
    }
    if (!document.isObject()) {
        errors->append(QStringLiteral("%1: must hold one object, { ... }").arg(path));
        return std::nullopt;
    }
    return JsonReader({path, QString(), document.object()}, errors);
}

bool JsonReader::has(const QString &field) const
{
    return m_from.object.contains(field);
}

QString JsonReader::text(const QString &field)
{
    const QJsonValue value = take(field);
    if (!value.isString()) {
        addError(field, QStringLiteral("must be a text"));
    }
    return value.toString();
}

QString JsonReader::text(const QString &field, const QString &fallback)
{
    return has(field) ? text(field) : fallback;
}

int JsonReader::number(const QString &field)
{
    const QJsonValue value = take(field);
    if (!value.isDouble() || value.toDouble() != double(value.toInt())) {
        addError(field, QStringLiteral("must be a whole number"));
    }
    return value.toInt();
}

int JsonReader::number(const QString &field, int fallback)
{
    return has(field) ? number(field) : fallback;
}

bool JsonReader::flag(const QString &field)
{
    if (!has(field)) {
        return false;
    }
    const QJsonValue value = take(field);
    if (!value.isBool()) {
        addError(field, QStringLiteral("must be true or false"));
    }
    return value.toBool();
}

QVector<int> JsonReader::numbers(const QString &field, int count)
{
    const QJsonArray array = take(field).toArray();
    QVector<int> numbers;
    for (const QJsonValue &value : array) {
        if (value.isDouble()) {
            numbers.append(value.toInt());
        }
    }
    if (numbers.size() != count || array.size() != count) {
        addError(field, QStringLiteral("must be a list of %1 whole numbers").arg(count));
    }
    numbers.resize(count);
    return numbers;
}

QSize JsonReader::size(const QString &field)
{
    const QVector<int> values = numbers(field, 2);
    return {values[0], values[1]};
}

QPoint JsonReader::point(const QString &field)
{
    const QVector<int> values = numbers(field, 2);
    return {values[0], values[1]};
}

QRect JsonReader::rect(const QString &field)
{
    const QVector<int> values = numbers(field, 4);
    return {values[0], values[1], values[2], values[3]};
}

LocalText JsonReader::localText(const QString &field)
{
    return localTextOf(take(field), field);
}

QVector<LocalText> JsonReader::localTexts(const QString &field)
{
    const QJsonArray array = take(field).toArray();
    if (array.isEmpty()) {
        addError(field, QStringLiteral("must be a list of texts in the three languages"));
    }
    QVector<LocalText> texts;
    for (int index = 0; index < array.size(); ++index) {
        texts.append(localTextOf(array[index], QStringLiteral("%1[%2]").arg(field).arg(index)));
    }
    return texts;
}

QString JsonReader::choice(const QString &field, const QStringList &allowed)
{
    QString value = text(field);
    if (!allowed.contains(value)) {
        addError(field, QStringLiteral("\"%1\" is unknown; use one of: %2")
                            .arg(value, allowed.join(QStringLiteral(", "))));
    }
    return value;
}

QVector<JsonReader> JsonReader::objects(const QString &field)
{
    QVector<JsonReader> readers;
    if (!has(field)) {
        return readers;
    }
    const QJsonValue value = take(field);
    if (!value.isArray()) {
        addError(field, QStringLiteral("must be a list, [ ... ]"));
    }
    const QJsonArray array = value.toArray();
    for (int index = 0; index < array.size(); ++index) {
        const QString place = QStringLiteral("%1%2[%3].").arg(m_from.place, field).arg(index);
        if (!array[index].isObject()) {
            addError(QStringLiteral("%1[%2]").arg(field).arg(index),
                     QStringLiteral("must be an object, { ... }"));
        }
        readers.append(JsonReader({m_from.file, place, array[index].toObject()}, m_errors));
    }
    return readers;
}

QStringList JsonReader::texts(const QString &field)
{
    QStringList texts;
    if (!has(field)) {
        return texts;
    }
    const QJsonArray array = take(field).toArray();
    for (const QJsonValue &value : array) {
        if (!value.isString()) {
            addError(field, QStringLiteral("must be a list of texts"));
        }
        texts.append(value.toString());
    }
    return texts;
}

std::optional<JsonReader> JsonReader::object(const QString &field)
{
    if (!has(field)) {
        return std::nullopt;
    }
    const QJsonValue value = take(field);
    if (!value.isObject()) {
        addError(field, QStringLiteral("must be an object, { ... }"));
    }
    return JsonReader({m_from.file, m_from.place + field + QLatin1Char('.'), value.toObject()}, m_errors);
}

QVector<JsonReader> JsonReader::oneOrMoreObjects(const QString &field)
{
    if (!m_from.object.value(field).isObject()) {
        return objects(field);
    }
    return {*object(field)};
}

QStringList JsonReader::oneOrMoreTexts(const QString &field)
{
    const QJsonValue value = m_from.object.value(field);
    if (has(field) && !value.isArray()) {
        return {text(field)};
    }
    return texts(field);
}

QVector<int> JsonReader::oneOrMoreNumbers(const QString &field)
{
    const QJsonValue value = m_from.object.value(field);
    return value.isArray() ? numbers(field, int(value.toArray().size())) : QVector<int>{number(field)};
}

JsonPlace JsonReader::rest() const
{
    JsonPlace rest = m_from;
    for (const QString &field : m_asked) {
        rest.object.remove(field);
    }
    return rest;
}

void JsonReader::addError(const QString &field, const QString &message)
{
    m_errors->append(QStringLiteral("%1: %2%3: %4").arg(m_from.file, m_from.place, field, message));
}

void JsonReader::reportUnknownFields()
{
    const QStringList fields = m_from.object.keys();
    for (const QString &field : fields) {
        if (!m_asked.contains(field)) {
            addError(field,
                     QStringLiteral("is not a field that is known here; remove it or correct its name"));
        }
    }
}

QJsonValue JsonReader::take(const QString &field)
{
    m_asked.insert(field);
    return m_from.object.value(field);
}

LocalText JsonReader::localTextOf(const QJsonValue &value, const QString &place)
{
    const QJsonObject texts = value.toObject();
    LocalText result;
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        const QString text = texts.value(locale).toString();
        if (text.isEmpty()) {
            addError(place, QStringLiteral("needs a text for \"%1\"").arg(locale));
        }
        result.insert(locale, text);
    }
    return result;
}
