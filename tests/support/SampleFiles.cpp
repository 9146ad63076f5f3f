#include "SampleFiles.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QStringList>
#include <QXmlStreamReader>

namespace {

QJsonValue changedValue(const QJsonValue &old, QStringList path, const QJsonValue &value)
{
    if (path.isEmpty()) {
        return value;
    }
    const QString key = path.takeFirst();
    if (!old.isArray()) {
        QJsonObject object = old.toObject();
        object.insert(key, changedValue(object.value(key), path, value));
        return object;
    }
    QJsonArray array = old.toArray();
    const int place = key.toInt();
    if (place == array.size()) {
        array.append(QJsonValue());
    }
    array.replace(place, changedValue(array.at(place), path, value));
    return array;
}

} // namespace

namespace sample {

QString folder()
{
    return QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/preset");
}

QString stepName(int step)
{
    return QStringLiteral("step%1").arg(step);
}

Files readStep(int step)
{
    Files files;
    const QDir directory(QStringLiteral("%1/%2/data").arg(folder(), stepName(step)));
    const QStringList names = directory.entryList(QDir::Files | QDir::Hidden);
    for (const QString &name : names) {
        QFile file(directory.filePath(name));
        if (file.open(QIODevice::ReadOnly)) {
            files.insert(name, QJsonDocument::fromJson(file.readAll()));
        }
    }
    return files;
}

QString mapFile(int map)
{
    return QStringLiteral("Map%1.json").arg(map, 3, 10, QLatin1Char('0'));
}

QJsonObject map(const Files &files, int map)
{
    return files.value(mapFile(map)).object();
}

QJsonArray entries(const Files &files, const QString &file)
{
    return files.value(file).array();
}

QJsonValue root(const QJsonDocument &document)
{
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

Files changed(Files files, const QString &file, const QString &path, const QJsonValue &value)
{
    const QJsonValue now = changedValue(root(files.value(file)), path.split(QLatin1Char('/')), value);
    files.insert(file, now.isArray() ? QJsonDocument(now.toArray()) : QJsonDocument(now.toObject()));
    return files;
}

QMap<QString, QString> catalogue(const QString &locale)
{
    QFile file(QStringLiteral(TUTORIAL_SOURCE_DIR "/resource/translations/%1.ts").arg(locale));
    QMap<QString, QString> texts;
    if (!file.open(QIODevice::ReadOnly)) {
        return texts;
    }
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation") && context == QLatin1String("Tutorial")) {
            texts.insert(source, xml.readElementText());
        }
    }
    return texts;
}

} // namespace sample
