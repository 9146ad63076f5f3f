#include "project/ProjectFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

bool staysInside(const QString &name)
{
    const QString clean = QDir::cleanPath(name);
    return !name.isEmpty() && QDir::isRelativePath(name) && clean != QLatin1String("..") &&
           !clean.startsWith(QLatin1String("../")) && clean != QLatin1String(".");
}

bool isTaken(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink(); // a link to nowhere is there too
}

} // namespace

std::optional<QString> ProjectFolder::create(const QString &location, const QString &name,
                                             const QMap<QString, QString> &files, QString *error)
{
    if (!isName(name)) {
        //: %1 is the name that the person gave a new project.
        *error = tr("A project cannot have the name “%1”: its folder is named "
                    "after it. Choose another name, without “/”.")
                     .arg(name);
        return std::nullopt;
    }
    QMap<QString, QByteArray> bytes;
    for (auto file = files.begin(); file != files.end(); ++file) {
        bytes.insert(file.key(), file.value().toUtf8());
    }
    // Built beside its place and renamed into it.
    QDir().mkpath(location);
    QTemporaryDir room(QDir(location).filePath(QStringLiteral(".new-XXXXXX")));
    if (!room.isValid()) {
        //: %1 is a folder, %2 the system's reason.
        *error = tr("The project's folder cannot be made in “%1” (%2). Choose "
                    "another place.")
                     .arg(location, room.errorString());
        return std::nullopt;
    }
    // A folder of its own in there: that of the room is closed to everybody else.
    const QString made = room.filePath(QStringLiteral("project"));
    QDir().mkpath(made);
    if (!write(made, bytes, {}, error)) {
        return std::nullopt;
    }
    const QString path = QDir(location).absoluteFilePath(freeName(location, name));
    if (!QDir().rename(made, path)) {
        //: %1 is the folder's path.
        *error = tr("The project's folder “%1” cannot be made. Choose another name or place.").arg(path);
        return std::nullopt;
    }
    return path;
}

bool ProjectFolder::isName(const QString &name)
{
    return staysInside(name) && !name.contains(QLatin1Char('/'));
}

bool ProjectFolder::isPlace(const QString &location)
{
    QFileInfo place(QDir(location).absolutePath());
    while (!isTaken(place.filePath()) && !place.isRoot()) {
        place.setFile(place.path());
    }
    return place.isDir() && place.isWritable();
}

QString ProjectFolder::freeName(const QString &location, const QString &name)
{
    QString free = name;
    for (int number = 2; isTaken(QDir(location).absoluteFilePath(free)); ++number) {
        free = QStringLiteral("%1 (%2)").arg(name, QString::number(number));
    }
    return free;
}

bool ProjectFolder::isProject(const QString &folder)
{
    return QFileInfo::exists(QDir(folder).filePath(QStringLiteral("data/MapInfos.json")));
}

QStringList ProjectFolder::projectsIn(const QString &location)
{
    const QDir place(location);
    QStringList projects;
    const QStringList folders =
        place.entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QString &folder : folders) {
        if (isProject(place.filePath(folder))) {
            projects.append(folder);
        }
    }
    return projects;
}

std::optional<QMap<QString, QByteArray>> ProjectFolder::read(const QString &folder, QString *error)
{
    const QDir project(folder);
    const QFileInfo data(project.filePath(QStringLiteral("data")));
    if (data.isDir() && !(data.isReadable() && data.isExecutable())) {
        //: %1 is a folder.
        *error = tr("The project's folder “%1” cannot be read: you are not permitted to list its files. "
                    "Permit it, and open the project again.")
                     .arg(data.filePath());
        return std::nullopt;
    }
    const QStringList names =
        QDir(data.filePath()).entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name);
    if (names.isEmpty()) {
        //: %1 is a folder.
        *error =
            tr("“%1” holds no project: it has no data files. Choose another folder.").arg(project.path());
        return std::nullopt;
    }
    QMap<QString, QByteArray> files;
    for (const QString &name : names) {
        QFile file(project.filePath(QStringLiteral("data/") + name));
        if (!file.open(QIODevice::ReadOnly)) {
            //: %1 is the file's path, %2 the system's reason.
            *error = tr("The project's file “%1” cannot be read (%2). Permit reading it, and open the "
                        "project again.")
                         .arg(file.fileName(), file.errorString());
            return std::nullopt;
        }
        files.insert(QStringLiteral("data/") + name, file.readAll());
    }
    return files;
}

bool ProjectFolder::write(const QString &folder, const QMap<QString, QByteArray> &files,
                          const QStringList &gone, QString *error)
{
    const auto fail = [error](const QFileDevice &file) {
        //: %1 is the file's path, %2 the system's reason.
        *error =
            tr("The project's file “%1” cannot be written (%2).").arg(file.fileName(), file.errorString());
        return false;
    };
    QStringList names = files.keys();
    names.append(gone);
    const auto leadsOut = std::find_if_not(names.cbegin(), names.cend(), staysInside);
    if (leadsOut != names.cend()) {
        //: %1 is a path inside the project.
        *error = tr("The project cannot hold the file “%1”: it would lie outside of the project's folder.")
                     .arg(*leadsOut);
        return false;
    }
    const QDir project(folder);
    std::vector<std::unique_ptr<QSaveFile>> written;
    for (auto file = files.begin(); file != files.end(); ++file) {
        written.push_back(std::make_unique<QSaveFile>(project.filePath(file.key())));
        QSaveFile &out = *written.back();
        QDir().mkpath(QFileInfo(out.fileName()).path());
        if (!out.open(QIODevice::WriteOnly) || out.write(file.value()) != file.value().size() ||
            !out.flush()) {
            return fail(out);
        }
    }
    for (const auto &file : written) {
        if (!file->commit()) {
            return fail(*file);
        }
    }
    for (const QString &name : gone) {
        QFile file(project.filePath(name));
        if (file.exists() && !file.remove()) {
            return fail(file);
        }
    }
    return true;
}
