#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QMap>
#include <QStringList>

#include <optional>

/// The folders of projects on the disk: each holds its data files in "data". What cannot be done is told in a
/// text for the person.
class ProjectFolder
{
    Q_DECLARE_TR_FUNCTIONS(ProjectFolder)

public:
    /// Writes @p files, path inside the project to text, into a new folder @p name inside of @p location,
    /// which need not exist yet; where there is such a folder already, a number is added: nothing that exists
    /// is touched. The folder appears whole or not at all. Gives its full path; nothing when the name is none
    /// for a folder, a path leads out of the project or a file cannot be written.
    [[nodiscard]] static std::optional<QString> create(const QString &location, const QString &name,
                                                       const QMap<QString, QString> &files, QString *error);

    /// Whether a project can have the name, which is that of its folder, too.
    [[nodiscard]] static bool isName(const QString &name);
    /// Whether folders can be made in @p location, which need not exist yet.
    [[nodiscard]] static bool isPlace(const QString &location);

    /// The name that a new folder @p name gets in @p location: with a number behind it where there is one
    /// already.
    [[nodiscard]] static QString freeName(const QString &location, const QString &name);

    /// Whether the folder holds a project.
    [[nodiscard]] static bool isProject(const QString &folder);

    /// Names of the folders in @p location that hold a project, in alphabetical order.
    [[nodiscard]] static QStringList projectsIn(const QString &location);

    /// The data files in @p folder by name, such as "data/Items.json". Nothing when the folder holds none, or
    /// one cannot be read.
    [[nodiscard]] static std::optional<QMap<QString, QByteArray>> read(const QString &folder, QString *error);

    /// Writes @p files into @p folder and takes the files @p gone away. Each file is replaced whole, and none
    /// before all of them could be written. None is touched when the path of one leads out of the folder.
    [[nodiscard]] static bool write(const QString &folder, const QMap<QString, QByteArray> &files,
                                    const QStringList &gone, QString *error);
};
