#pragma once

#include "project/ProjectStore.h"

#include <QObject>
#include <QTimer>

#include <optional>

/// The project of a lesson from the request for its data files to the folder on disk: the files come from the
/// companion, the folder from the person who makes a new project, in whichever order. When both are there,
/// the folder is written.
class LessonProject : public QObject
{
    Q_OBJECT

public:
    /// How long after the person's part the files are waited for before the person is told that they are
    /// missing.
    static constexpr int kFilesMs = 5000;

    explicit LessonProject(QObject *parent = nullptr);

    /// A lesson asks for its data files. What an earlier one left unfinished is dropped.
    void begin();
    /// No lesson waits for a project any more.
    void drop();

    /// The data files, path inside the project to text.
    void takeFiles(const QMap<QString, QString> &files);
    /// The person has made a new project: its folder is to be @p name inside of @p location. Ignored while no
    /// lesson waits: the project is then the person's own.
    void takePlace(const QString &location, const QString &name);

Q_SIGNALS:
    /// The project stands on disk, at @p path, with these files.
    void made(const QString &path, const QMap<QString, QString> &files);
    /// It does not, and @p error tells the person why. What there is of it waits for the rest: files for the
    /// next project that the person makes, a project for files that come late.
    void failed(const QString &error);

private:
    struct Place
    {
        QString location;
        QString name;
    };

    void makeWhenComplete();

    ProjectStore m_store;
    QTimer m_filesMissing;
    bool m_waits = false;
    std::optional<QMap<QString, QString>> m_files;
    std::optional<Place> m_place;
};
