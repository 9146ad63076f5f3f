#pragma once

#include <QJsonDocument>
#include <QMap>
#include <QObject>

/// The data files of the project that a lesson brings along, in a folder of the person's.
class ProjectStore : public QObject
{
    Q_OBJECT

public:
    explicit ProjectStore(QObject *parent = nullptr);

    /// Writes @p files, path inside the project to text, into a new folder @p name inside of @p location,
    /// which need not exist yet; where there is such a folder already, a number is added: nothing that exists
    /// is touched. The folder appears whole or not at all. False with a text for the person when the name is
    /// none for a folder, a path leads out of the project or a file cannot be written; the project that was
    /// open stays open.
    [[nodiscard]] bool create(const QString &location, const QString &name,
                              const QMap<QString, QString> &files, QString *error);

    /// Full path of the open project's folder; empty before the first create().
    [[nodiscard]] QString path() const { return m_path; }

    /// The file of the open project, such as "data/Actors.json"; null when there is none or it is not JSON.
    [[nodiscard]] QJsonDocument file(const QString &name) const;

Q_SIGNALS:
    /// Another project is open.
    void changed();

private:
    [[nodiscard]] static bool write(const QString &path, const QString &text, QString *error);

    QString m_path;
};
