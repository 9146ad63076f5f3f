#include "Tutorial/localisation/SampleTranslators.h"

#include "Tutorial/localisation/EventCommands.h"
#include "Tutorial/localisation/SampleWarning.h"
#include "tool/JsonWrapper.h"

#include <QJsonArray>

#include <optional>

namespace {

/// Looks at the JSON that a translator walks. Each check says whether its wrapper is as the translator needs
/// it, and logs a warning with the number and the message of that check when it is not.
class Checks
{
public:
    explicit Checks(const char *function)
        : m_function(function)
    {
    }

    [[nodiscard]] bool isObject(const JsonWrapper &wrapper, int number, const char *message) const
    {
        if (!wrapper.isObject()) {
            warnSample(m_function, number, message, wrapper);
            return false;
        }
        return true;
    }
    [[nodiscard]] bool isArray(const JsonWrapper &wrapper, int number, const char *message) const
    {
        if (!wrapper.isArray()) {
            warnSample(m_function, number, message, wrapper);
            return false;
        }
        return true;
    }
    [[nodiscard]] bool contains(const JsonWrapper &wrapper, const QString &key, int number,
                                const char *message) const
    {
        if (!wrapper.contains(key)) {
            warnSample(m_function, number, message, wrapper) << key;
            return false;
        }
        return true;
    }

private:
    const char *m_function;
};

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
    const Checks checks("translateKeyText");
    if (!checks.isObject(wrapper, 549, "wrapper is not object") ||
        !checks.contains(wrapper, key, 553, "wrapper does not contain key")) {
        return;
    }
    if (const auto text = replacement(translate, context, wrapper[key].toString())) {
        wrapper.set(key, *text);
    }
}

void translateArrayKeyText(const TranslateText &translate, const QString &context, const QString &key,
                           JsonWrapper &wrapper)
{
    const Checks checks("translateArrayKeyText");
    if (!checks.isArray(wrapper, 574, "wrapper is not array")) {
        return;
    }
    const int length = wrapper.length();
    for (int i = 0; i < length; ++i) {
        JsonWrapper item = wrapper[i];
        if (item.isNull()) {
            continue;
        }
        if (!checks.isObject(item, 584, "item is not object") ||
            !checks.contains(item, key, 588, "item does not contain key")) {
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
    const Checks checks("translateKeyArrayText");
    if (!checks.isObject(wrapper, 610, "wrapper is not object") ||
        !checks.contains(wrapper, key, 614, "wrapper does not contain key")) {
        return;
    }
    const JsonWrapper keyWrapper = wrapper[key];
    if (keyWrapper.isNull()) {
        return;
    }
    if (!checks.isArray(keyWrapper, 622, "keyWrapper is not array")) {
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
    const Checks checks("translateKeyKeyArrayText");
    if (!checks.isObject(wrapper, 646, "wrapper is not object") ||
        !checks.contains(wrapper, key1, 650, "wrapper does not contain key")) {
        return;
    }
    JsonWrapper key1Wrapper = wrapper[key1];
    if (key1Wrapper.isNull()) {
        return;
    }
    if (!checks.isObject(key1Wrapper, 658, "key1Wrapper is not object") ||
        !checks.contains(key1Wrapper, key2, 662, "key1Wrapper does not contain key")) {
        return;
    }
    const JsonWrapper key2Wrapper = key1Wrapper[key2];
    if (key2Wrapper.isNull()) {
        return;
    }
    if (!checks.isArray(key2Wrapper, 670, "key2Wrapper is not array")) {
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
    const Checks checks("translateKeyKeyAnyKeyText");
    if (!checks.isObject(wrapper, 695, "wrapper is not object") ||
        !checks.contains(wrapper, key1, 699, "wrapper does not contain key")) {
        return;
    }
    JsonWrapper key1Wrapper = wrapper[key1];
    if (key1Wrapper.isNull()) {
        return;
    }
    if (!checks.isObject(key1Wrapper, 707, "key1Wrapper is not object") ||
        !checks.contains(key1Wrapper, key2, 711, "key1Wrapper does not contain key")) {
        return;
    }
    JsonWrapper key2Wrapper = key1Wrapper[key2];
    if (key2Wrapper.isNull()) {
        return;
    }
    if (!checks.isObject(key2Wrapper, 719, "key2Wrapper is not object")) {
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
    const Checks checks("translateMapEvent");
    const QString eventsKey = QStringLiteral("events");
    const QString nameKey = QStringLiteral("name");
    const QString pagesKey = QStringLiteral("pages");
    if (!checks.isObject(wrapper, 894, "wrapper is not object") ||
        !checks.contains(wrapper, eventsKey, 898, "wrapper does not contain eventsKey")) {
        return;
    }
    const JsonWrapper eventsWrapper = wrapper[eventsKey];
    if (eventsWrapper.isNull()) {
        return;
    }
    if (!checks.isArray(eventsWrapper, 906, "eventsWrapper is not array")) {
        return;
    }

    QJsonArray events = eventsWrapper.toArray();
    for (int i = 0; i < events.size(); ++i) {
        JsonWrapper event(events.at(i));
        if (event.isNull()) {
            continue;
        }
        if (!checks.isObject(event, 916, "eventItem is not object") ||
            !checks.contains(event, nameKey, 920, "eventItem does not contain nameKey")) {
            break;
        }
        if (const auto text = replacement(translate, context, event[nameKey].toString())) {
            event.set(nameKey, *text);
            events.replace(i, event.toValue());
        }
        if (!checks.contains(event, pagesKey, 937, "eventItem does not contain pagesKey")) {
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
    const Checks checks("translateEvent");
    const QString listKey = QStringLiteral("list");
    if (!checks.isArray(wrapper, 758, "wrapper is not array")) {
        return;
    }
    const int length = wrapper.length();
    for (int i = 0; i < length; ++i) {
        JsonWrapper item = wrapper[i];
        if (item.isNull()) {
            continue;
        }
        if (!checks.isObject(item, 768, "item is not object") ||
            !checks.contains(item, listKey, 772, "item does not contain key")) {
            return;
        }
        const JsonWrapper listWrapper = item[listKey];
        if (!checks.isArray(listWrapper, 777, "listWrapper is not array")) {
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
