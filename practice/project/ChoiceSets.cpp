#include "project/ChoiceSets.h"

#include "lesson/description/JsonReader.h"

#include <QDir>

#include <algorithm>

namespace {

QVector<Choice> readChoices(JsonReader &file, const QString &locale)
{
    const QString kValue = QStringLiteral("value");
    QVector<Choice> choices;
    QVector<JsonReader> readers = file.objects(QStringLiteral("choices"));
    for (JsonReader &reader : readers) {
        Choice choice;
        choice.value = reader.value(kValue);
        choice.text = reader.localText(QStringLiteral("text")).value(locale);
        if (reader.has(QStringLiteral("row"))) {
            choice.row = reader.localText(QStringLiteral("row")).value(locale);
        }
        choice.start = reader.value(QStringLiteral("start"));
        choice.group = reader.text(QStringLiteral("group"), QString());
        const auto hasIt = [&choice](const Choice &other) {
            return other.value == choice.value;
        };
        if (choice.value.isUndefined()) {
            reader.addError(kValue, QStringLiteral("is missing; write what stands in the data file"));
        } else if (std::any_of(choices.cbegin(), choices.cend(), hasIt)) {
            reader.addError(kValue, QStringLiteral("stands here twice; give each choice its own"));
        }
        reader.reportUnknownFields();
        choices.append(choice);
    }
    if (choices.isEmpty()) {
        file.addError(QStringLiteral("choices"), QStringLiteral("must be a list of choices"));
    }
    return choices;
}

bool isNothing(const QJsonValue &value)
{
    return value.isUndefined() || value.isNull() || (value.isDouble() && value.toDouble() == 0) ||
           (value.isString() && value.toString().isEmpty()) || (value.isBool() && !value.toBool());
}

} // namespace

ChoiceSets ChoiceSets::read(const QString &folder, const QString &locale, QStringList *errors)
{
    ChoiceSets sets;
    const QDir directory(folder);
    const QStringList files = directory.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QString &name : files) {
        if (auto reader = JsonReader::open(directory.filePath(name), errors)) {
            const QString set = QFileInfo(name).completeBaseName();
            const QVector<Choice> choices = readChoices(*reader, locale);
            sets.m_sets.insert(set, choices);
            for (const Choice &choice : choices) {
                if (!choice.group.isEmpty()) {
                    sets.m_sets[set + QLatin1Char('/') + choice.group].append(choice);
                }
            }
            reader->reportUnknownFields();
        }
    }
    return sets;
}

QString ChoiceSets::problemOf(const QString &set) const
{
    return m_sets.contains(set)
               ? QString()
               : QStringLiteral("there is no set of choices \"%1\"; add choices/%1.json, or use "
                                "one of: %2")
                     .arg(set, names().join(QStringLiteral(", ")));
}

Choice ChoiceSets::choice(const QString &set, const QJsonValue &value) const
{
    const QVector<Choice> all = choices(set);
    const auto isIt = [&value](const Choice &choice) {
        return isSame(value, choice.value);
    };
    const auto found = std::find_if(all.cbegin(), all.cend(), isIt);
    return found != all.cend()
               ? *found
               : Choice{value, QString(), QString(), QJsonValue(QJsonValue::Undefined), QString()};
}

bool ChoiceSets::isSame(const QJsonValue &value, const QJsonValue &wished)
{
    if (value.isUndefined() || value.isNull()) {
        return isNothing(wished);
    }
    return value == wished;
}
