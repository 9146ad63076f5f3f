#include "lesson-check/WindowSizes.h"

#include "tool/DataSupport.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

WindowSizes::WindowSizes(const QString &path, const QString &shownPath, Findings &findings)
{
    const QDir folder(path);
    const QStringList names = folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QByteArray bytes;
        DataSupport::readFile(folder.filePath(name), bytes);
        const QJsonObject window = QJsonDocument::fromJson(bytes).object();
        const QJsonArray size = window.value(QLatin1String("size")).toArray();
        if (window.value(QLatin1String("key")).isString() && size.size() == 2)
            m_sizes.insert(window.value(QLatin1String("key")).toString(),
                           {size.at(0).toInt(), size.at(1).toInt()});
        else
            findings.append(
                {Finding::Kind::kError,
                 shownPath + QLatin1Char('/') + name,
                 0,
                 {},
                 {},
                 QStringLiteral("a window's description is a JSON object with \"key\" and \"size\"")});
    }
}
