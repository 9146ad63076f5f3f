#include "lesson-check/WindowPlaces.h"

#include "tool/DataSupport.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

WindowPlaces::WindowPlaces(const QString &path, const QString &shownPath, Findings &findings)
{
    const QDir folder(path);
    const QStringList names = folder.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QByteArray bytes;
        DataSupport::readFile(folder.filePath(name), bytes);
        const QJsonObject description = QJsonDocument::fromJson(bytes).object();
        const QJsonArray size = description.value(QLatin1String("size")).toArray();
        if (!description.value(QLatin1String("key")).isString() || size.size() != 2) {
            findings.append(
                {Finding::Kind::kError,
                 shownPath + QLatin1Char('/') + name,
                 0,
                 {},
                 {},
                 QStringLiteral("a window's description is a JSON object with \"key\" and \"size\"")});
            continue;
        }
        const QJsonArray place = description.value(QLatin1String("place")).toArray();
        Window window{QSize(size.at(0).toInt(), size.at(1).toInt()),
                      description.value(QLatin1String("partOf")).toString(),
                      QPoint(place.at(0).toInt(), place.at(1).toInt()), readControls(description, QString())};
        const QJsonArray popups = description.value(QLatin1String("popups")).toArray();
        for (const QJsonValue &popup : popups)
            window.controls +=
                readControls(popup.toObject(), popup[QLatin1String("name")].toString() + QLatin1Char('/'));
        m_windows.insert(description.value(QLatin1String("key")).toString(), window);
    }
}

QVector<ControlPlace> WindowPlaces::readControls(const QJsonObject &window, const QString &prefix)
{
    QVector<ControlPlace> controls;
    const QJsonArray all = window.value(QLatin1String("controls")).toArray();
    for (const QJsonValue &value : all) {
        const QJsonObject control = value.toObject();
        const QJsonArray place = control.value(QLatin1String("geometry")).toArray();
        controls.append(
            {prefix + control.value(QLatin1String("name")).toString(),
             QRect(place.at(0).toInt(), place.at(1).toInt(), place.at(2).toInt(), place.at(3).toInt()),
             control.value(QLatin1String("rowHeight")).toInt(),
             control.value(QLatin1String("tabWidth")).toInt()});
        const QString action = control.value(QLatin1String("action")).toString();
        if (!action.isEmpty())
            m_actions.insert(action, control.value(QLatin1String("actionState")).toString());
    }
    return controls;
}

QVector<ControlPlace> WindowPlaces::controls(const QString &windowKey) const
{
    QVector<ControlPlace> all = m_windows.value(windowKey).controls;
    const QStringList others = keys();
    for (const QString &other : others) {
        const Window &part = *m_windows.constFind(other);
        if (windowKey.isEmpty() || part.partOf != windowKey)
            continue;
        for (const ControlPlace &control : part.controls) {
            all.append(control);
            all.last().geometry.translate(part.place);
        }
    }
    return all;
}

QStringList WindowPlaces::keys() const
{
    QStringList all = m_windows.keys();
    all.sort();
    return all;
}
