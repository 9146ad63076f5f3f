#include "author/Outcome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

QString asText(const QJsonValue &value)
{
    if (value.isUndefined()) {
        return QStringLiteral("not there");
    }
    const QString list = QString::fromUtf8(QJsonDocument(QJsonArray({value})).toJson(QJsonDocument::Compact));
    return list.mid(1, list.size() - 2);
}

QJsonValue fileValue(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return QJsonValue::Undefined;
    }
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

QJsonValue valueAt(const QString &folder, const QString &place)
{
    const QStringList words = place.split(QLatin1Char('/'));
    QJsonValue value =
        fileValue(QDir(folder).filePath(words.mid(0, 2).join(QLatin1Char('/')) + QLatin1String(".json")));
    for (int i = 2; i < words.size(); ++i) {
        QString word = words.at(i);
        word.replace(QLatin1String("~1"), QLatin1String("/"))
            .replace(QLatin1String("~0"), QLatin1String("~"));
        // Beyond the end of a list stands nothing, as where there is no such member.
        value = value.isArray() ? value.toArray().at(word.toInt()) : value.toObject().value(word);
        if (value.isUndefined()) {
            break;
        }
    }
    return value;
}

} // namespace

Outcome::Outcome(const QString &scenarioPath)
{
    const QFileInfo scenario(scenarioPath);
    m_name = scenario.completeBaseName() + QStringLiteral(".outcome.json");
    QFile file(scenario.dir().filePath(m_name));
    if (!file.exists()) {
        return;
    }
    QJsonParseError error = {};
    if (!file.open(QIODevice::ReadOnly)) {
        m_fault = QStringLiteral("it cannot be read: ") + file.errorString();
        return;
    }
    m_ways = QJsonDocument::fromJson(file.readAll(), &error).object();
    if (m_ways.isEmpty()) {
        m_fault = error.error == QJsonParseError::NoError ? QStringLiteral("it holds no object")
                                                          : error.errorString();
    }
}

QStringList Outcome::problems(const QString &folder, const QString &way) const
{
    if (!m_fault.isEmpty()) {
        return {QStringLiteral("%1: %2").arg(m_name, m_fault)};
    }
    QStringList problems;
    for (const QString &which : {QStringLiteral("always"), way}) {
        const QJsonObject places = m_ways.value(which).toObject();
        for (auto place = places.constBegin(); place != places.constEnd(); ++place) {
            const QJsonValue found = valueAt(folder, place.key());
            if (found != place.value()) {
                problems.append(QStringLiteral("%1: %2 is to be %3 and is %4")
                                    .arg(m_name, place.key(), asText(place.value()), asText(found)));
            }
        }
    }
    return problems;
}
