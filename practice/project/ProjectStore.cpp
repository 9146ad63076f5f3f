#include "project/ProjectStore.h"

#include "LocaleText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <utility>

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

ProjectStore::ProjectStore(QString locale, QObject *parent)
    : QObject(parent)
    , m_locale(std::move(locale))
{
}

bool ProjectStore::create(const QString &location, const QString &name, const QMap<QString, QString> &files,
                          QString *error)
{
    if (!staysInside(name) || name.contains(QLatin1Char('/'))) {
        *error = localeText(m_locale,
                            QStringLiteral("A project cannot have the name \"%1\": its folder is named "
                                           "after it. Choose another name, without \"/\"."),
                            QStringLiteral("プロジェクトの名前を「%1」にはできません。プロジェクトの名前は、"
                                           "フォルダーの名前にもなるためです。「/」を含まない別の名前に"
                                           "してください。"),
                            QStringLiteral("项目不能叫“%1”，因为项目文件夹也用这个名称。请换一个不含“/”的"
                                           "名称。"))
                     .arg(name);
        return false;
    }
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (!staysInside(file.key())) {
            *error =
                localeText(m_locale,
                           QStringLiteral("The project cannot hold the file \"%1\": it would lie outside of "
                                          "the project's folder."),
                           QStringLiteral("ファイル「%1」は、プロジェクトのフォルダーの外に置かれて"
                                          "しまうため、プロジェクトに入れられません。"),
                           QStringLiteral("项目不能包含文件“%1”，因为该文件会位于项目文件夹之外。"))
                    .arg(file.key());
            return false;
        }
    }
    // Built beside its place and renamed into it.
    QDir().mkpath(location);
    QTemporaryDir room(QDir(location).filePath(QStringLiteral(".new-XXXXXX")));
    if (!room.isValid()) {
        *error = localeText(m_locale,
                            QStringLiteral("The project's folder cannot be made in \"%1\" (%2). Choose "
                                           "another place."),
                            QStringLiteral("「%1」にプロジェクトのフォルダーを作れません（%2）。別の場所を"
                                           "選んでください。"),
                            QStringLiteral("无法在“%1”里建立项目文件夹（%2）。请换一个位置。"))
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
        *error =
            localeText(
                m_locale,
                QStringLiteral("The project's folder \"%1\" cannot be made. Choose another name or place."),
                QStringLiteral("プロジェクトのフォルダー「%1」を作れません。名前か場所を変えてください。"),
                QStringLiteral("无法建立项目文件夹“%1”。请换一个名称或位置。"))
                .arg(path);
        return false;
    }
    m_path = path;
    Q_EMIT changed();
    return true;
}

bool ProjectStore::write(const QString &path, const QString &text, QString *error) const
{
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    if (QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
        file.write(bytes) == bytes.size() && file.flush()) {
        return true;
    }
    *error = localeText(m_locale, QStringLiteral("The project's file \"%1\" cannot be written (%2)."),
                        QStringLiteral("プロジェクトのファイル「%1」に書き込めません（%2）。"),
                        QStringLiteral("无法写入项目中的文件“%1”（%2）。"))
                 .arg(path, file.errorString());
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
