#include "TutorialEditor/TutorialItemData.h"

#include "Tutorial/localisation/ScenarioTexts.h"
#include "TutorialEditor/ModifyTutorialItemDataCommand.h"
#include "TutorialEditor/PropertyHash.h"
#include "UndoRedo/UndoRedo.h"
#include "tool/JsonWrapper.h"
#include "tool/LogLine.h"

#include <QStringList>
#include <QVariantHash>

#include <memory>

namespace {

constexpr const char *kSource = R"(..\..\tutorial\cpp\TutorialEditor\TutorialItemData.cpp)";

void read(const JsonWrapper &json, const QString &key, int &field)
{
    if (json.contains(key)) {
        field = json[key].toInt();
    }
}

void read(const JsonWrapper &json, const QString &key, bool &field)
{
    if (json.contains(key)) {
        field = json[key].toBool();
    }
}

void read(const JsonWrapper &json, const QString &key, QString &field)
{
    if (json.contains(key)) {
        field = json[key].toString();
    }
}

/// The fields that only a step has.
void readStep(const JsonWrapper &json, const ScenarioTexts &texts, TutorialItemData &data)
{
    read(json, QStringLiteral("translationId"), data.translationId);
    read(json, QStringLiteral("x"), data.x);
    read(json, QStringLiteral("y"), data.y);
    const QString windowKey = QStringLiteral("windowKey");
    read(json, json.contains(windowKey) ? windowKey : QStringLiteral("followWindow"), data.windowKey);
    read(json, QStringLiteral("condition"), data.condition);
    read(json, QStringLiteral("hint"), data.hint);

    const QString identifier = QLatin1Char('#') + QString::number(data.translationId);
    const QString translated = texts.applyTranslation(identifier);
    data.hint2 = translated.isEmpty() ? identifier : translated;

    read(json, QStringLiteral("icon"), data.icon);
    read(json, QStringLiteral("jump"), data.jump);
    read(json, QStringLiteral("jumpNo"), data.jumpNo);
    read(json, QStringLiteral("command"), data.command);
    read(json, QStringLiteral("showArrow"), data.showArrow);
}

QString field(const char *key, const QVariant &value)
{
    return QLatin1Char('"') + QLatin1String(key) + QLatin1String("\":") + JsonWrapper::getJsonString(value);
}

} // namespace

TutorialItemData *TutorialItemData::fromJson(const JsonWrapper &json, const ScenarioTexts &texts)
{
    auto data = std::make_unique<TutorialItemData>();
    try {
        const QString idKey = QStringLiteral("id");
        if (json.isObject() && !json.contains(idKey)) {
            JsonWrapper::errorHandler(QStringLiteral("m_object doesn't have key: %1").arg(idKey));
        }
        data->id = json[idKey].toInt();
        read(json, QStringLiteral("name"), data->name);
        bool folder = false;
        read(json, QStringLiteral("folder"), folder);
        if (!folder) {
            readStep(json, texts, *data);
        }
        read(json, QStringLiteral("prohibited"), data->prohibited);
    } catch (const QString &reason) {
        logWarning(kSource, "TutorialItemData::fromJson", 329) << reason;
        return nullptr;
    }
    return data.release();
}

QString TutorialItemData::toJson(const QString &extra) const
{
    QStringList fields{
        QStringLiteral("\"id\":") + QString::number(id),
        field("name", name),
        field("translationId", translationId),
        field("x", x),
        field("y", y),
        field("windowKey", windowKey),
        field("condition", condition),
        field("hint", hint),
        field("hint2", hint2),
        field("icon", icon),
        field("jump", jump),
        field("jumpNo", jumpNo),
        field("command", command),
        field("showArrow", showArrow),
        field("prohibited", prohibited),
    };
    if (!extra.isEmpty()) {
        fields << extra;
    }
    return QLatin1Char('{') + fields.join(QLatin1Char(',')) + QLatin1Char('}');
}

void TutorialItemData::setName(const QString &value)
{
    if (value == name) {
        return;
    }
    UndoRedo *undoRedo = UndoRedo::instance();
    if (undoRedo == nullptr || !undoRedo->inTransaction()) {
        name = value;
        return;
    }
    PropertyHash properties;
    properties.insert(QStringLiteral("target"), QStringLiteral("name"));
    undoRedo->addCommand(new ModifyTutorialItemDataCommand(id, properties, value, changeNote()));
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
