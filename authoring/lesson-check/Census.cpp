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

/// The row of the library as a whole.
const QLatin1String kAll("all");
const QLatin1String kCommand("command");
const QLatin1String kLastText("maxTranslationId");

void addTo(QJsonObject &sums, const QString &key, int number)
{
    sums.insert(key, sums.value(key).toInt() + number);
}

/// Adds the figures of one lesson. Of the text numbers the highest counts, of the commands how many there
/// are.
void addTo(QJsonObject &sums, const QJsonObject &figures)
{
    for (auto figure = figures.begin(); figure != figures.end(); ++figure) {
        if (figure.key() == kCommand) {
            addTo(sums, QStringLiteral("commands"), figure.value().toString().isEmpty() ? 0 : 1);
        } else if (figure.key() == kLastText) {
            sums.insert(kLastText, std::max(sums.value(kLastText).toInt(), figure.value().toInt()));
        } else if (figure.value().isObject()) {
            QJsonObject counts = sums.value(figure.key()).toObject();
            const QJsonObject more = figure.value().toObject();
            for (auto count = more.begin(); count != more.end(); ++count) {
                addTo(counts, count.key(), count.value().toInt());
            }
            sums.insert(figure.key(), counts);
        } else {
            addTo(sums, figure.key(), figure.value().toInt());
        }
    }
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
            {kLastText, maxTranslationId},
            {kCommand, commands.join(QStringLiteral(" "))}};
}

QVector<Census::Difference> Census::compare(const QJsonObject &has, const QJsonObject &wanted)
{
    QVector<Difference> differences;
    QStringList figures = has.keys();
    figures.sort();
    for (const QString &figure : qAsConst(figures)) {
        if (!has.value(figure).isObject()) {
            if (has.value(figure) != wanted.value(figure)) {
                differences.append({figure, has.value(figure), wanted.value(figure)});
            }
            continue;
        }
        const QJsonObject hasCounts = has.value(figure).toObject();
        const QJsonObject wantedCounts = wanted.value(figure).toObject();
        const QSet<QString> all = keysOf(hasCounts, wantedCounts);
        QStringList keys(all.cbegin(), all.cend());
        keys.sort();
        for (const QString &key : qAsConst(keys)) {
            if (hasCounts.value(key) != wantedCounts.value(key)) {
                differences.append({QStringLiteral("%1 %2").arg(figure, key), hasCounts.value(key),
                                    wantedCounts.value(key)});
            }
        }
    }
    return differences;
}

Findings Census::check(const Lesson &lesson) const
{
    if (!m_rows.contains(lesson.name)) {
        return {{Finding::Kind::kError,
                 m_file,
                 0,
                 lesson.name,
                 {},
                 QStringLiteral("the table has no row for this lesson")}};
    }
    Findings findings;
    const QVector<Difference> differences = compare(count(lesson), m_rows.value(lesson.name).toObject());
    for (const Difference &difference : differences) {
        findings.append({Finding::Kind::kError,
                         lesson.file,
                         0,
                         {},
                         difference.figure,
                         QStringLiteral("the lesson has %1, its row in %2 says %3")
                             .arg(shown(difference.has), m_file, shown(difference.wanted))});
    }
    return findings;
}

Findings Census::checkAll(const QVector<Lesson> &lessons) const
{
    QJsonObject all{{QStringLiteral("commands"), 0}};
    for (const Lesson &lesson : lessons) {
        addTo(all, count(lesson));
    }
    const QVector<Difference> differences = compare(all, m_rows.value(kAll).toObject());
    if (differences.isEmpty()) {
        return {};
    }
    const Difference &first = differences.constFirst();
    return {{Finding::Kind::kError, m_file, 0, kAll, first.figure,
             QStringLiteral("the lessons have %1 together, the row says %2")
                 .arg(shown(first.has), shown(first.wanted))}};
}
