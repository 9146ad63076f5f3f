#include "Tutorial/localisation/SampleTranslators.h"

#include <optional>

#include <QJsonArray>

#include "Tutorial/localisation/EventCommands.h"
#include "Tutorial/localisation/SampleWarning.h"
#include "tool/JsonWrapper.h"

namespace {

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

} // namespace

void translateKeyText(const TranslateText &translate, const QString &context, const QString &key,
                      JsonWrapper &wrapper)
{
    constexpr const char *kFunction = "translateKeyText";
    if (!wrapper.isObject()) {
        warnSample(kFunction, 549, "wrapper is not object", wrapper);
        return;
    }
    if (!wrapper.contains(key)) {
        warnSample(kFunction, 553, "wrapper does not contain key", wrapper) << key;
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
        warnSample(kFunction, 574, "wrapper is not array", wrapper);
        return;
    }
    const int length = wrapper.length();
    for (int i = 0; i < length; ++i) {
        JsonWrapper item = wrapper[i];
        if (item.isNull()) {
            continue;
        }
        if (!item.isObject()) {
            warnSample(kFunction, 584, "item is not object", item);
            return;
        }
        if (!item.contains(key)) {
            warnSample(kFunction, 588, "item does not contain key", item) << key;
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
        warnSample(kFunction, 610, "wrapper is not object", wrapper);
        return;
    }
    if (!wrapper.contains(key)) {
        warnSample(kFunction, 614, "wrapper does not contain key", wrapper) << key;
        return;
    }
    const JsonWrapper keyWrapper = wrapper[key];
    if (keyWrapper.isNull()) {
        return;
    }
    if (!keyWrapper.isArray()) {
        warnSample(kFunction, 622, "keyWrapper is not array", keyWrapper);
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
        warnSample(kFunction, 646, "wrapper is not object", wrapper);
        return;
    }
    if (!wrapper.contains(key1)) {
        warnSample(kFunction, 650, "wrapper does not contain key", wrapper) << key1;
        return;
    }
    JsonWrapper key1Wrapper = wrapper[key1];
    if (key1Wrapper.isNull()) {
        return;
    }
    if (!key1Wrapper.isObject()) {
        warnSample(kFunction, 658, "key1Wrapper is not object", key1Wrapper);
        return;
    }
    if (!key1Wrapper.contains(key2)) {
        warnSample(kFunction, 662, "key1Wrapper does not contain key", key1Wrapper) << key2;
        return;
    }
    const JsonWrapper key2Wrapper = key1Wrapper[key2];
    if (key2Wrapper.isNull()) {
        return;
    }
    if (!key2Wrapper.isArray()) {
        warnSample(kFunction, 670, "key2Wrapper is not array", key2Wrapper);
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
        warnSample(kFunction, 695, "wrapper is not object", wrapper);
        return;
    }
    if (!wrapper.contains(key1)) {
        warnSample(kFunction, 699, "wrapper does not contain key", wrapper) << key1;
        return;
    }
    JsonWrapper key1Wrapper = wrapper[key1];
    if (key1Wrapper.isNull()) {
        return;
    }
    if (!key1Wrapper.isObject()) {
        warnSample(kFunction, 707, "key1Wrapper is not object", key1Wrapper);
        return;
    }
    if (!key1Wrapper.contains(key2)) {
        warnSample(kFunction, 711, "key1Wrapper does not contain key", key1Wrapper) << key2;
        return;
    }
    JsonWrapper key2Wrapper = key1Wrapper[key2];
    if (key2Wrapper.isNull()) {
        return;
    }
    if (!key2Wrapper.isObject()) {
        warnSample(kFunction, 719, "key2Wrapper is not object", key2Wrapper);
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
        warnSample(kFunction, 894, "wrapper is not object", wrapper);
        return;
    }
    if (!wrapper.contains(eventsKey)) {
        warnSample(kFunction, 898, "wrapper does not contain eventsKey", wrapper) << eventsKey;
        return;
    }
    const JsonWrapper eventsWrapper = wrapper[eventsKey];
    if (eventsWrapper.isNull()) {
        return;
    }
    if (!eventsWrapper.isArray()) {
        warnSample(kFunction, 906, "eventsWrapper is not array", eventsWrapper);
        return;
    }

    QJsonArray events = eventsWrapper.toArray();
    for (int i = 0; i < events.size(); ++i) {
        JsonWrapper event(events.at(i));
        if (event.isNull()) {
            continue;
        }
        if (!event.isObject()) {
            warnSample(kFunction, 916, "eventItem is not object", event);
            break;
        }
        if (!event.contains(nameKey)) {
            warnSample(kFunction, 920, "eventItem does not contain nameKey", event) << nameKey;
            break;
        }
        if (const auto text = replacement(translate, context, event[nameKey].toString())) {
            event.set(nameKey, *text);
            events.replace(i, event.toValue());
        }
        if (!event.contains(pagesKey)) {
            warnSample(kFunction, 937, "eventItem does not contain pagesKey", event) << pagesKey;
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
        warnSample(kFunction, 758, "wrapper is not array", wrapper);
        return;
    }
    const int length = wrapper.length();
    for (int i = 0; i < length; ++i) {
        JsonWrapper item = wrapper[i];
        if (item.isNull()) {
            continue;
        }
        if (!item.isObject()) {
            warnSample(kFunction, 768, "item is not object", item);
            return;
        }
        if (!item.contains(listKey)) {
            warnSample(kFunction, 772, "item does not contain key", item) << listKey;
            return;
        }
        const JsonWrapper listWrapper = item[listKey];
        if (!listWrapper.isArray()) {
            warnSample(kFunction, 777, "listWrapper is not array", listWrapper);
            return;
        }
        QJsonArray list = listWrapper.toArray();
        const EventWalk walked = translateEventCommands(translate, context, list);
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
