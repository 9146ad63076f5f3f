#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QMap>
#include <QString>

/// The source files of the sample project, for the tests that read them.
namespace sample {

constexpr int kFirstStep = 2;
constexpr int kLastStep = 19;

/// Data files by name, such as "Items.json".
using Files = QMap<QString, QJsonDocument>;

/// The folder that holds the steps.
QString folder();
QString stepName(int step);
/// The files of a step. One that is not JSON is there as a null document.
Files readStep(int step);

QString mapFile(int map);
QJsonObject map(const Files &files, int map);
/// The entries of a list file, which begin with null at place 0.
QJsonArray entries(const Files &files, const QString &file);
QJsonValue root(const QJsonDocument &document);

/// @p files with one value changed. The path leads to it by keys and places, such as "events/3/x"; what does
/// not exist yet is made.
Files changed(Files files, const QString &file, const QString &path, const QJsonValue &value);

/// The sample project's texts in the catalogue of this locale, by their numbers.
QMap<QString, QString> catalogue(const QString &locale);

} // namespace sample
