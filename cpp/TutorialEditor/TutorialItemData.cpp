#include "TutorialEditor/TutorialItemData.h"

#include "Tutorial/localisation/ScenarioTexts.h"
#include "tool/JsonWrapper.h"
#include "tool/LogLine.h"

#include <QStringList>
#include <QVariantHash>

#include <memory>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\TutorialEditor\TutorialItemData.cpp)";

/// What hint2 holds: the text with this number in the language of the lesson, or "#N".
QString translatedHint(const ScenarioTexts &texts, int translationId)
{
    const QString identifier = QLatin1Char('#') + QString::number(translationId);
    const QString translated = texts.applyTranslation(identifier);
    return translated.isEmpty() ? identifier : translated;
}

void readField(const JsonWrapper &json, const ItemField &field, ItemValues *values)
{
    QString key = QLatin1String(field.key);
    if (field.formerKey != nullptr && !json.contains(key)) {
        key = QLatin1String(field.formerKey);
    }
    if (json.contains(key)) {
        field.read(json[key], values);
    }
}

QString jsonField(const char *key, const QVariant &value)
{
    return QLatin1Char('"') + QLatin1String(key) + QLatin1String("\":") + JsonWrapper::getJsonString(value);
}

} // namespace

std::unique_ptr<TutorialItemData> TutorialItemData::fromJson(const JsonWrapper &json,
                                                             const ScenarioTexts &texts)
{
    auto data = std::make_unique<TutorialItemData>();
    try {
        const QString idKey = QStringLiteral("id");
        if (json.isObject() && !json.contains(idKey)) {
            JsonWrapper::errorHandler(QStringLiteral("m_object doesn't have key: %1").arg(idKey));
        }
        data->id = json[idKey].toInt();
        const QString nameKey = QStringLiteral("name");
        if (json.contains(nameKey)) {
            data->name = json[nameKey].toString();
        }
        const QString folderKey = QStringLiteral("folder");
        const bool folder = json.contains(folderKey) && json[folderKey].toBool();
        for (const ItemField &field : itemFields()) {
            if (folder && !field.inFolders) {
                continue;
            }
            if (field.is(&ItemValues::hint2)) {
                data->hint2 = translatedHint(texts, data->translationId);
            } else {
                readField(json, field, data.get());
            }
        }
    } catch (const QString &reason) {
        logWarning(kSource, "TutorialItemData::fromJson", 329) << reason;
        return nullptr;
    }
    return data;
}

QString TutorialItemData::toJson(const QString &extra) const
{
    QStringList fields{QStringLiteral("\"id\":") + QString::number(id), jsonField("name", name)};
    for (const ItemField &field : itemFields()) {
        fields << jsonField(field.key, field.value(*this));
    }
    if (!extra.isEmpty()) {
        fields << extra;
    }
    return QLatin1Char('{') + fields.join(QLatin1Char(',')) + QLatin1Char('}');
}

void TutorialItemData::setName(const QString &value)
{
    if (value == name || (m_changes != nullptr && m_changes->recordName(*this, value))) {
        return;
    }
    name = value;
}

void TutorialItemData::setTranslationId(int value)
{
    if (value != translationId) {
        translationId = value;
    }
}

QString TutorialItemData::changeNote() const
{
    return JsonWrapper::getJsonString(QVariantHash{{QStringLiteral("tutorialItemId"), id}});
}
