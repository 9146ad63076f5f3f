#include "Tutorial/localisation/SampleTranslators.h"

#include <optional>

#include <QJsonArray>
#include <QJsonObject>

#include "tool/JsonWrapper.h"
#include "tool/LogLine.h"

namespace {

constexpr const char *kSource = "..\\..\\tutorial\\cpp\\Tutorial\\localisation\\SampleTranslators.cpp";

/// Begins the warning about @p offending; a key may be streamed behind it.
QDebug warn(const char *function, int number, const char *message, const JsonWrapper &offending)
{
    const QString json = offending.toJson().replace(QLatin1Char('%'), QChar(0xFF05));
    QDebug line = logWarning(kSource, function, number);
    line << message << json;
    return line;
}

QDebug warn(const char *function, int number, const char *message, const QJsonValue &offending)
{
    return warn(function, number, message, JsonWrapper(offending));
}

/// What is to stand in the place of @p text, if anything else than @p text.
std::optional<QString> replacement(const TranslateText &translate, const QString &context,
                                   const QString &text)
{
    if (text.isEmpty()) {
        return std::nullopt;
    }
    const QString translation = translate(context, text);
    if (translation.isEmpty() || translation == text) {
        return std::nullopt;
    }
    return translation;
}

/// Replaces the texts among the elements of @p array and says whether any changed.
bool replaceElements(const TranslateText &translate, const QString &context, QJsonArray &array)
{
    bool changed = false;
    for (int i = 0; i < array.size(); ++i) {
        if (const auto text = replacement(translate, context, array.at(i).toString())) {
            array.replace(i, *text);
            changed = true;
        }
    }
    return changed;
}

// Event commands by their codes in the host editor's data files.
enum class EventCode {
    kShowText = 101,
    kShowChoices = 102,
    kTextLine = 401,
    kChoiceBranch = 402,
    kScrollLine = 405
};

/// Hands the element at @p index to @p translate if it is a string, and writes the result whatever it is.
bool translateElement(const TranslateText &translate, const QString &context, int index, QJsonArray &array)
{
    if (!array.at(index).isString()) {
        return false;
    }
    const QString text = array.at(index).toString();
    array.replace(index, translate(context, text));
    return true;
}

/// What became of an event command, a list of them, or one level above.
struct Walked
{
    bool changed;
    bool finished; ///< False when a warning ended the walk.
};

constexpr Walked kUntouched{false, true};
constexpr Walked kEnded{false, false};

Walked translateChoices(const TranslateText &translate, const QString &context, QJsonArray &parameters)
{
    if (parameters.isEmpty()) {
        warn("translateEvent", 820, "parametersWrapper is too short", parameters);
        return kEnded;
    }
    if (!parameters.at(0).isArray()) {
        warn("translateEvent", 825, "parameterWrapper is not array", parameters.at(0));
        return kEnded;
    }
    QJsonArray choices = parameters.at(0).toArray();
    bool changed = false;
    for (int i = 0; i < choices.size(); ++i) {
        changed = translateElement(translate, context, i, choices) || changed;
    }
    if (changed) {
        parameters.replace(0, choices);
    }
    return {changed, true};
}

/// Translates the parameter at @p index; the warning about too few parameters has the number @p
/// warningNumber.
Walked translateParameter(const TranslateText &translate, const QString &context, int index,
                          int warningNumber, QJsonArray &parameters)
{
    if (parameters.size() <= index) {
        warn("translateEvent", warningNumber, "parametersWrapper is too short", parameters);
        return kEnded;
    }
    return {translateElement(translate, context, index, parameters), true};
}

Walked translateParameters(const TranslateText &translate, const QString &context, int code,
                           QJsonArray &parameters)
{
    switch (static_cast<EventCode>(code)) {
    case EventCode::kShowText: {
        constexpr int kSpeaker = 4;
        if (parameters.size() <= kSpeaker) {
            return kUntouched;
        }
        return {translateElement(translate, context, kSpeaker, parameters), true};
    }
    case EventCode::kShowChoices:
        return translateChoices(translate, context, parameters);
    case EventCode::kTextLine:
    case EventCode::kScrollLine:
        return translateParameter(translate, context, 0, 844, parameters);
    case EventCode::kChoiceBranch:
        return translateParameter(translate, context, 1, 858, parameters);
    }
    return kUntouched;
}

/// Changes are written into @p list as they come, so what was changed before the walk ended stays.
Walked translateCommands(const TranslateText &translate, const QString &context, QJsonArray &list)
{
    constexpr const char *kFunction = "translateEvent";
    const QString codeKey = QStringLiteral("code");
    const QString parametersKey = QStringLiteral("parameters");
    bool changed = false;
    for (int i = 0; i < list.size(); ++i) {
        const QJsonValue entry = list.at(i);
        if (entry.isNull()) {
            continue;
        }
        if (!entry.isObject()) {
            warn(kFunction, 787, "listItem is not object", entry);
            return {changed, false};
        }
        QJsonObject command = entry.toObject();
        const QJsonValue code = command.value(codeKey);
        if (code.isUndefined()) {
            warn(kFunction, 791, "listItem does not contain key", entry) << codeKey;
            return {changed, false};
        }
        const QJsonValue parametersValue = command.value(parametersKey);
        if (parametersValue.isUndefined()) {
            warn(kFunction, 795, "listItem does not contain key", entry) << parametersKey;
            return {changed, false};
        }
        if (!parametersValue.isArray()) {
            warn(kFunction, 800, "parametersWrapper is not array", parametersValue);
            return {changed, false};
        }
        QJsonArray parameters = parametersValue.toArray();
        const Walked walked = translateParameters(translate, context, code.toInt(), parameters);
        if (walked.changed) {
            command.insert(parametersKey, parameters);
            list.replace(i, command);
            changed = true;
        }
        if (!walked.finished) {
            return {changed, false};
        }
    }
    return {changed, true};
}

} // namespace

void translateKeyText(const TranslateText &translate, const QString &context, const QString &key,
                      JsonWrapper &wrapper)
{
    constexpr const char *kFunction = "translateKeyText";
    if (!wrapper.isObject()) {
        warn(kFunction, 549, "wrapper is not object", wrapper);
        return;
    }
    if (!wrapper.contains(key)) {
        warn(kFunction, 553, "wrapper does not contain key", wrapper) << key;
        return;
    }
    if (const auto text = replacement(translate, context, wrapper[key].toString())) {
        wrapper.set(key, *text);
    }
}

void translateArrayKeyText(const TranslateText &translate, const QString &context, const QString &key,
                           JsonWrapper &wrapper)
{
    constexpr const char *kFunction = "translateArrayKeyText";
    if (!wrapper.isArray()) {
        warn(kFunction, 574, "wrapper is not array", wrapper);
        return;
    }
    const int length = wrapper.length();
    for (int i = 0; i < length; ++i) {
        JsonWrapper item = wrapper[i];
        if (item.isNull()) {
            continue;
        }
        if (!item.isObject()) {
            warn(kFunction, 584, "item is not object", item);
            return;
        }
        if (!item.contains(key)) {
            warn(kFunction, 588, "item does not contain key", item) << key;
            return;
        }
        if (const auto text = replacement(translate, context, item[key].toString())) {
            item.set(key, *text);
            wrapper.set(i, item.toValue());
        }
    }
}

void translateKeyArrayText(const TranslateText &translate, const QString &context, const QString &key,
                           JsonWrapper &wrapper)
{
    constexpr const char *kFunction = "translateKeyArrayText";
    if (!wrapper.isObject()) {
        warn(kFunction, 610, "wrapper is not object", wrapper);
        return;
    }
    if (!wrapper.contains(key)) {
        warn(kFunction, 614, "wrapper does not contain key", wrapper) << key;
        return;
    }
    const JsonWrapper keyWrapper = wrapper[key];
    if (keyWrapper.isNull()) {
        return;
    }
    if (!keyWrapper.isArray()) {
        warn(kFunction, 622, "keyWrapper is not array", keyWrapper);
        return;
    }
    QJsonArray array = keyWrapper.toArray();
    if (replaceElements(translate, context, array)) {
        wrapper.set(key, array);
    }
}

void translateKeyKeyArrayText(const TranslateText &translate, const QString &context, const QString &key1,
                              const QString &key2, JsonWrapper &wrapper)
{
    constexpr const char *kFunction = "translateKeyKeyArrayText";
    if (!wrapper.isObject()) {
        warn(kFunction, 646, "wrapper is not object", wrapper);
        return;
    }
    if (!wrapper.contains(key1)) {
        warn(kFunction, 650, "wrapper does not contain key", wrapper) << key1;
        return;
    }
    JsonWrapper key1Wrapper = wrapper[key1];
    if (key1Wrapper.isNull()) {
        return;
    }
    if (!key1Wrapper.isObject()) {
        warn(kFunction, 658, "key1Wrapper is not object", key1Wrapper);
        return;
    }
    if (!key1Wrapper.contains(key2)) {
        warn(kFunction, 662, "key1Wrapper does not contain key", key1Wrapper) << key2;
        return;
    }
    const JsonWrapper key2Wrapper = key1Wrapper[key2];
    if (key2Wrapper.isNull()) {
        return;
    }
    if (!key2Wrapper.isArray()) {
        warn(kFunction, 670, "key2Wrapper is not array", key2Wrapper);
        return;
    }
    QJsonArray array = key2Wrapper.toArray();
    if (replaceElements(translate, context, array)) {
        key1Wrapper.set(key2, array);
        wrapper.set(key1, key1Wrapper.toValue());
    }
}

void translateKeyKeyAnyKeyText(const TranslateText &translate, const QString &context, const QString &key1,
                               const QString &key2, JsonWrapper &wrapper)
{
    constexpr const char *kFunction = "translateKeyKeyAnyKeyText";
    if (!wrapper.isObject()) {
        warn(kFunction, 695, "wrapper is not object", wrapper);
        return;
    }
    if (!wrapper.contains(key1)) {
        warn(kFunction, 699, "wrapper does not contain key", wrapper) << key1;
        return;
    }
    JsonWrapper key1Wrapper = wrapper[key1];
    if (key1Wrapper.isNull()) {
        return;
    }
    if (!key1Wrapper.isObject()) {
        warn(kFunction, 707, "key1Wrapper is not object", key1Wrapper);
        return;
    }
    if (!key1Wrapper.contains(key2)) {
        warn(kFunction, 711, "key1Wrapper does not contain key", key1Wrapper) << key2;
        return;
    }
    JsonWrapper key2Wrapper = key1Wrapper[key2];
    if (key2Wrapper.isNull()) {
        return;
    }
    if (!key2Wrapper.isObject()) {
        warn(kFunction, 719, "key2Wrapper is not object", key2Wrapper);
        return;
    }
    bool changed = false;
    const QStringList keys = key2Wrapper.keys();
    for (const QString &key : keys) {
        if (const auto text = replacement(translate, context, key2Wrapper[key].toString())) {
            key2Wrapper.set(key, *text);
            changed = true;
        }
    }
    if (changed) {
        key1Wrapper.set(key2, key2Wrapper.toValue());
        wrapper.set(key1, key1Wrapper.toValue());
    }
}

void translateMapEvent(const TranslateText &translate, const QString &context, JsonWrapper &wrapper)
{
    constexpr const char *kFunction = "translateMapEvent";
    const QString eventsKey = QStringLiteral("events");
    const QString nameKey = QStringLiteral("name");
    const QString pagesKey = QStringLiteral("pages");
    if (!wrapper.isObject()) {
        warn(kFunction, 894, "wrapper is not object", wrapper);
        return;
    }
    if (!wrapper.contains(eventsKey)) {
        warn(kFunction, 898, "wrapper does not contain eventsKey", wrapper) << eventsKey;
        return;
    }
    const JsonWrapper eventsWrapper = wrapper[eventsKey];
    if (eventsWrapper.isNull()) {
        return;
    }
    if (!eventsWrapper.isArray()) {
        warn(kFunction, 906, "eventsWrapper is not array", eventsWrapper);
        return;
    }

    QJsonArray events = eventsWrapper.toArray();
    for (int i = 0; i < events.size(); ++i) {
        JsonWrapper event(events.at(i));
        if (event.isNull()) {
            continue;
        }
        if (!event.isObject()) {
            warn(kFunction, 916, "eventItem is not object", event);
            break;
        }
        if (!event.contains(nameKey)) {
            warn(kFunction, 920, "eventItem does not contain nameKey", event) << nameKey;
            break;
        }
        if (const auto text = replacement(translate, context, event[nameKey].toString())) {
            event.set(nameKey, *text);
            events.replace(i, event.toValue());
        }
        if (!event.contains(pagesKey)) {
            warn(kFunction, 937, "eventItem does not contain pagesKey", event) << pagesKey;
            break;
        }
        JsonWrapper pages = event[pagesKey];
        translateEvent(translate, context, pages);
        event.set(pagesKey, pages.toValue());
        events.replace(i, event.toValue());
    }
    wrapper.set(eventsKey, events);
}

void translateEvent(const TranslateText &translate, const QString &context, JsonWrapper &wrapper)
{
    constexpr const char *kFunction = "translateEvent";
    const QString listKey = QStringLiteral("list");
    if (!wrapper.isArray()) {
        warn(kFunction, 758, "wrapper is not array", wrapper);
        return;
    }
    const int length = wrapper.length();
    for (int i = 0; i < length; ++i) {
        JsonWrapper item = wrapper[i];
        if (item.isNull()) {
            continue;
        }
        if (!item.isObject()) {
            warn(kFunction, 768, "item is not object", item);
            return;
        }
        if (!item.contains(listKey)) {
            warn(kFunction, 772, "item does not contain key", item) << listKey;
            return;
        }
        const JsonWrapper listWrapper = item[listKey];
        if (!listWrapper.isArray()) {
            warn(kFunction, 777, "listWrapper is not array", listWrapper);
            return;
        }
        QJsonArray list = listWrapper.toArray();
        const Walked walked = translateCommands(translate, context, list);
        if (walked.changed) {
            item.set(listKey, list);
            wrapper.set(i, item.toValue());
        }
        if (!walked.finished) {
            return;
        }
    }
}

void runSampleRows(const QList<QStringList> &rows, const TranslateText &translate, JsonWrapper &wrapper)
{
    for (const QStringList &row : rows) {
        if (row.value(1) != QLatin1String("tutorial")) {
            continue;
        }
        const QString translator = row.value(0);
        const QString context = row.value(2);
        const QString key1 = row.value(3);
        const QString key2 = row.value(4);
        if (translator == QLatin1String("translateKeyText")) {
            translateKeyText(translate, context, key1, wrapper);
        } else if (translator == QLatin1String("translateArrayKeyText")) {
            translateArrayKeyText(translate, context, key1, wrapper);
        } else if (translator == QLatin1String("translateKeyArrayText")) {
            translateKeyArrayText(translate, context, key1, wrapper);
        } else if (translator == QLatin1String("translateKeyKeyArrayText")) {
            translateKeyKeyArrayText(translate, context, key1, key2, wrapper);
        } else if (translator == QLatin1String("translateKeyKeyAnyKeyText")) {
            translateKeyKeyAnyKeyText(translate, context, key1, key2, wrapper);
        } else if (translator == QLatin1String("translateMapEvent")) {
            translateMapEvent(translate, context, wrapper);
        } else if (translator == QLatin1String("translateCommonEvent")) {
            translateCommonEvent(translate, context, wrapper);
        }
    }
}
