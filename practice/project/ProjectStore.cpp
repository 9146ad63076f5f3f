#include "project/ProjectStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

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

ProjectStore::ProjectStore(QObject *parent)
    : QObject(parent)
{
}

bool ProjectStore::create(const QString &location, const QString &name, const QMap<QString, QString> &files,
                          QString *error)
{
    if (!staysInside(name) || name.contains(QLatin1Char('/'))) {
        //: %1 is the name that the person gave a new project.
        *error = tr("A project cannot have the name \"%1\": its folder is named "
                    "after it. Choose another name, without \"/\".")
                     .arg(name);
        return false;
    }
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (!staysInside(file.key())) {
            //: %1 is a path inside the project.
            *error = tr("The project cannot hold the file \"%1\": it would lie outside of "
                        "the project's folder.")
                         .arg(file.key());
            return false;
        }
    }
    // Built beside its place and renamed into it.
    QDir().mkpath(location);
    QTemporaryDir room(QDir(location).filePath(QStringLiteral(".new-XXXXXX")));
    if (!room.isValid()) {
        //: %1 is a folder, %2 the system's reason.
        *error = tr("The project's folder cannot be made in \"%1\" (%2). Choose "
                    "another place.")
                     .arg(location, room.errorString());
        return false;
    }
    // A folder of its own in there: that of the room is closed to everybody else.
    const QString made = room.filePath(QStringLiteral("project"));
    QDir().mkpath(made);
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (!write(QDir(made).filePath(file.key()), file.value(), error)) {
            return false;
        }
    }
    QString path = QDir(location).absoluteFilePath(name);
    for (int number = 2; isTaken(path); ++number) {
        path = QDir(location).absoluteFilePath(QStringLiteral("%1 (%2)").arg(name, QString::number(number)));
    }
    if (!QDir().rename(made, path)) {
        //: %1 is the folder's path.
        *error = tr("The project's folder \"%1\" cannot be made. Choose another name or place.").arg(path);
        return false;
    }
    m_path = path;
    Q_EMIT changed();
    return true;
}

bool ProjectStore::write(const QString &path, const QString &text, QString *error)
{
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
        file.write(bytes) == bytes.size() && file.flush()) {
        return true;
    }
    //: %1 is the file's path, %2 the system's reason.
    *error = tr("The project's file \"%1\" cannot be written (%2).").arg(path, file.errorString());
    return false;
}

QJsonDocument ProjectStore::file(const QString &name) const
{
    QFile file(QDir(m_path).filePath(name));
    if (m_path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QJsonDocument::fromJson(file.readAll());
}
