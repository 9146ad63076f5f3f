#include "Tutorial/localisation/EventCommands.h"

#include "Tutorial/localisation/SampleWarning.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

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

constexpr EventWalk kUntouched{false, true};
constexpr EventWalk kEnded{false, false};

EventWalk translateChoices(const TranslateText &translate, const QString &context, QJsonArray &parameters)
{
    if (parameters.isEmpty()) {
        warnSample("translateEvent", 820, "parametersWrapper is too short", parameters);
        return kEnded;
    }
    if (!parameters.at(0).isArray()) {
        warnSample("translateEvent", 825, "parameterWrapper is not array", parameters.at(0));
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

/// Translates the parameter at @p index; @p warningNumber is the number of the warning about too few
/// parameters.
EventWalk translateParameter(const TranslateText &translate, const QString &context, int index,
                             int warningNumber, QJsonArray &parameters)
{
    if (parameters.size() <= index) {
        warnSample("translateEvent", warningNumber, "parametersWrapper is too short", parameters);
        return kEnded;
    }
    return {translateElement(translate, context, index, parameters), true};
}

EventWalk translateParameters(const TranslateText &translate, const QString &context, int code,
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

} // namespace

EventWalk translateEventCommands(const TranslateText &translate, const QString &context, QJsonArray &list)
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
            warnSample(kFunction, 787, "listItem is not object", entry);
            return {changed, false};
        }
        QJsonObject command = entry.toObject();
        const QJsonValue code = command.value(codeKey);
        if (code.isUndefined()) {
            warnSample(kFunction, 791, "listItem does not contain key", entry) << codeKey;
            return {changed, false};
        }
        const QJsonValue parametersValue = command.value(parametersKey);
        if (parametersValue.isUndefined()) {
            warnSample(kFunction, 795, "listItem does not contain key", entry) << parametersKey;
            return {changed, false};
        }
        if (!parametersValue.isArray()) {
            warnSample(kFunction, 800, "parametersWrapper is not array", parametersValue);
            return {changed, false};
        }
        QJsonArray parameters = parametersValue.toArray();
        const EventWalk walked = translateParameters(translate, context, code.toInt(), parameters);
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
