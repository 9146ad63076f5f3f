#include "host/StepStart.h"

#include "host/HostEditor.h"

#include <QJsonArray>

StepStart StepStart::of(const HostEditor &editor, const WindowTrail &trail,
                        const std::optional<ControlSpot> &pointed)
{
    StepStart start{editor.state(),
                    trail.open(),
                    trail.lastCauses(),
                    editor.projectId(),
                    editor.dataMark(),
                    pointed ? editor.meaningOf(*pointed) : QString(),
                    editor.chosen(),
                    {},
                    {}};
    for (const OpenWindow &window : trail.open()) {
        const QString menu = window.cause.control.section(QLatin1Char('/'), 0, 0);
        start.openingMeanings.insert(window.name, editor.meaningOf(window.cause));
        if (!window.menuCause.isNone()) {
            start.openingMeanings.insert(menu, editor.meaningOf(window.menuCause));
        }
    }
    return start;
}

void StepStart::takeWindows(const StepStart &before, const QString &needed)
{
    const auto isOnTop = [&needed](const OpenWindows &windows) {
        return !windows.isEmpty() && windows.constLast().name == needed;
    };
    if (before.project != project || isOnTop(open) || !isOnTop(before.open)) {
        return;
    }
    open = before.open;
    lastCauses = before.lastCauses;
    chosen = before.chosen;
    openingMeanings = before.openingMeanings;
}

QJsonObject StepStart::toJson() const
{
    QJsonArray windows;
    for (const OpenWindow &window : open) {
        windows.append(WindowTrail::toJson(window));
    }
    QJsonObject causes;
    for (auto cause = lastCauses.cbegin(); cause != lastCauses.cend(); ++cause) {
        causes.insert(cause.key(), WindowTrail::toJson(cause.value()));
    }
    QJsonArray left;
    for (const ControlSpot &spot : leftBehind) {
        left.append(WindowTrail::toJson(spot));
    }
    return {{QStringLiteral("state"), state.toJson()},
            {QStringLiteral("windows"), windows},
            {QStringLiteral("causes"), causes},
            {QStringLiteral("left"), left}};
}

StepStart StepStart::fromJson(const QJsonObject &json)
{
    StepStart start;
    start.state = EditorState::fromJson(json.value(QLatin1String("state")).toObject());
    const QJsonArray windows = json.value(QLatin1String("windows")).toArray();
    for (const QJsonValue &window : windows) {
        start.open.append(WindowTrail::fromJson(window.toObject()));
    }
    const QJsonObject causes = json.value(QLatin1String("causes")).toObject();
    for (auto cause = causes.begin(); cause != causes.end(); ++cause) {
        start.lastCauses.insert(cause.key(), WindowTrail::spotFromJson(cause.value().toObject()));
    }
    const QJsonArray left = json.value(QLatin1String("left")).toArray();
    for (const QJsonValue &spot : left) {
        start.leftBehind.append(WindowTrail::spotFromJson(spot.toObject()));
    }
    return start;
}
