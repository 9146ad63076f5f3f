#include "lesson-check/Census.h"

#include "lesson/Condition.h"

#include <QJsonDocument>
#include <QMap>
#include <QSet>

#include <algorithm>

namespace {

QString shown(const QJsonValue &value)
{
    if (value.isString()) {
        return QStringLiteral("\"%1\"").arg(value.toString());
    }
    return QString::number(value.toInt());
}

QJsonObject toJson(const QMap<QString, int> &counts)
{
    QJsonObject object;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        object.insert(count.key(), count.value());
    }
    return object;
}

QSet<QString> keysOf(const QJsonObject &a, const QJsonObject &b)
{
    const QStringList keys = a.keys() + b.keys();
    return {keys.cbegin(), keys.cend()};
}

} // namespace

Census::Census(QString file, const QByteArray &json, Findings &findings)
    : m_file(std::move(file))
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    m_rows = document.object();
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        findings.append({Finding::Kind::kError,
                         m_file,
                         0,
                         {},
                         {},
                         QStringLiteral("the table is not a JSON object: %1").arg(error.errorString())});
    }
}

QJsonObject Census::count(const Lesson &lesson)
{
    QMap<QString, int> windows;
    QMap<QString, int> conditions;
    QMap<QString, int> icons;
    int noPosition = 0;
    int jumps = 0;
    int jumpNos = 0;
    int maxTranslationId = 0;
    QStringList commands;
    for (const ScenarioItem &step : lesson.steps) {
        ++windows[step.windowKey];
        ++conditions[Condition::wordOf(step.condition)];
        ++icons[step.icon];
        noPosition += step.hasNoPosition() ? 1 : 0;
        jumps += step.jump != -1 ? 1 : 0;
        jumpNos += step.jumpNo != -1 ? 1 : 0;
        maxTranslationId = std::max(maxTranslationId, step.translationId);
        if (!step.command.isEmpty()) {
            commands.append(step.command);
        }
    }
    return {{QStringLiteral("items"), lesson.steps.size()},
            {QStringLiteral("windows"), toJson(windows)},
            {QStringLiteral("conditions"), toJson(conditions)},
            {QStringLiteral("icons"), toJson(icons)},
            {QStringLiteral("noPosition"), noPosition},
            {QStringLiteral("jumps"), jumps},
            {QStringLiteral("jumpNos"), jumpNos},
            {QStringLiteral("maxTranslationId"), maxTranslationId},
            {QStringLiteral("command"), commands.join(QStringLiteral(" "))}};
}

Findings Census::check(const Lesson &lesson) const
{
    Findings findings;
    const auto report = [&](const QString &figure, const QJsonValue &has, const QJsonValue &wanted) {
        findings.append({Finding::Kind::kError,
                         lesson.file,
                         0,
                         {},
                         figure,
                         QStringLiteral("the lesson has %1, its row in %2 says %3")
                             .arg(shown(has), m_file, shown(wanted))});
    };
    if (!m_rows.contains(lesson.name)) {
        findings.append({Finding::Kind::kError,
                         m_file,
                         0,
                         lesson.name,
                         {},
                         QStringLiteral("the table has no row for this lesson")});
        return findings;
    }
    const QJsonObject has = count(lesson);
    const QJsonObject wanted = m_rows.value(lesson.name).toObject();
    QStringList figures = has.keys();
    figures.sort();
    for (const QString &figure : figures) {
        if (!has.value(figure).isObject()) {
            if (has.value(figure) != wanted.value(figure)) {
                report(figure, has.value(figure), wanted.value(figure));
            }
            continue;
        }
        const QJsonObject hasCounts = has.value(figure).toObject();
        const QJsonObject wantedCounts = wanted.value(figure).toObject();
        const QSet<QString> all = keysOf(hasCounts, wantedCounts);
        QStringList keys(all.cbegin(), all.cend());
        keys.sort();
        for (const QString &key : keys) {
            if (hasCounts.value(key) != wantedCounts.value(key)) {
                report(QStringLiteral("%1 %2").arg(figure, key), hasCounts.value(key),
                       wantedCounts.value(key));
            }
        }
    }
    return findings;
}
