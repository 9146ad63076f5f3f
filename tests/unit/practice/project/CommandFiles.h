#pragma once

#include "lesson/LessonWords.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRect>
#include <QRegularExpression>
#include <QVector>

/// The files of the event commands as they stand in the tree, for the tests that look into them.
namespace commandFiles {

inline QString str(const char *text)
{
    return QString::fromUtf8(text);
}

inline QString folder(const char *name)
{
    return QStringLiteral(TUTORIAL_SOURCE_DIR "/practice/descriptions/") + QLatin1String(name);
}

inline QJsonObject read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

/// The files of a folder by their names without the ending.
inline QMap<QString, QJsonObject> all(const char *name)
{
    QMap<QString, QJsonObject> files;
    const QDir directory(folder(name));
    const QStringList names = directory.entryList({str("*.json")}, QDir::Files);
    for (const QString &file : names) {
        files.insert(file.chopped(5), read(directory.filePath(file)));
    }
    return files;
}

inline QVector<QJsonObject> objects(const QJsonValue &list)
{
    QVector<QJsonObject> objects;
    const QJsonArray array = list.toArray();
    for (const QJsonValue &value : array) {
        objects.append(value.toObject());
    }
    return objects;
}

inline QVector<QJsonObject> controls(const QJsonObject &command)
{
    return objects(command.value(str("controls")));
}

inline QString text(const QJsonObject &object, const char *member)
{
    return object.value(QLatin1String(member)).toString();
}

inline QRect geometry(const QJsonObject &control)
{
    const QJsonArray numbers = control.value(str("geometry")).toArray();
    return {numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(), numbers.at(3).toInt()};
}

/// The texts of the object by locale.
inline QMap<QString, QString> texts(const QJsonValue &object)
{
    QMap<QString, QString> texts;
    const QStringList locales = LessonWords::locales();
    for (const QString &locale : locales) {
        texts.insert(locale, object.toObject().value(locale).toString());
    }
    return texts;
}

/// Everything that a list shows of the command: one text, or one for each form that it can have.
inline QVector<QMap<QString, QString>> rows(const QJsonObject &command)
{
    const QJsonValue row = command.value(str("row"));
    if (row.isObject()) {
        return {texts(row)};
    }
    QVector<QMap<QString, QString>> all;
    const QVector<QJsonObject> list = objects(row);
    for (const QJsonObject &entry : list) {
        all.append(texts(entry.value(str("text"))));
    }
    return all;
}

/// What stands in braces in a row, without them; a path there may have braces of its own.
inline QStringList placeholders(const QString &row)
{
    static const QRegularExpression form(str(R"(\{((?:[^{}]|\{[^{}]*\})*)\})"));
    QStringList found;
    auto match = form.globalMatch(row);
    while (match.hasNext()) {
        found.append(match.next().captured(1));
    }
    return found;
}

/// The number of the parameter that a field or a source leads to; -1 for one that leads elsewhere.
inline int parameterOf(const QString &path)
{
    static const QRegularExpression form(str("^command/(\\d+)(?:/.*)?$"));
    const QRegularExpressionMatch match = form.match(path);
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

} // namespace commandFiles
