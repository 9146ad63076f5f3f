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

bool write(const QString &path, const QString &text, QString *error)
{
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
        file.write(bytes) == bytes.size() && file.flush()) {
        return true;
    }
    *error = QStringLiteral("The project's file \"%1\" cannot be written: %2").arg(path, file.errorString());
    return false;
}

} // namespace

bool ProjectStore::create(const QString &location, const QString &name, const QMap<QString, QString> &files,
                          QString *error)
{
    if (!staysInside(name) || name.contains(QLatin1Char('/'))) {
        *error =
            QStringLiteral("A project cannot have the name \"%1\": its folder is named after it. Choose a "
                           "name without \"/\".")
                .arg(name);
        return false;
    }
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (!staysInside(file.key())) {
            *error =
                QStringLiteral("The project cannot hold the file \"%1\": it would lie outside of the folder.")
                    .arg(file.key());
            return false;
        }
    }
    // Built beside its place and renamed into it.
    QDir().mkpath(location);
    QTemporaryDir room(QDir(location).filePath(QStringLiteral(".new-XXXXXX")));
    if (!room.isValid()) {
        *error = QStringLiteral("The project's folder cannot be made in \"%1\": %2")
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
    QString path = QDir(location).filePath(name);
    for (int number = 2; isTaken(path); ++number) {
        path = QDir(location).filePath(QStringLiteral("%1 (%2)").arg(name).arg(number));
    }
    if (!QDir().rename(made, path)) {
        *error = QStringLiteral("The project's folder \"%1\" cannot be made.").arg(path);
        return false;
    }
    m_path = path;
    Q_EMIT changed();
    return true;
}

QJsonDocument ProjectStore::file(const QString &name) const
{
    QFile file(QDir(m_path).filePath(name));
    if (m_path.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QJsonDocument::fromJson(file.readAll());
}
