#pragma once

#include <QMap>
#include <QObject>
#include <QTimer>

#include <optional>

/// What a lesson's project waits for, from the request for its data files until they stand in a project: the
/// files come from the companion, the project from the person who makes a new one, in whichever order.
class LessonProject : public QObject
{
    Q_OBJECT

public:
    using Files = QMap<QString, QString>;

    /// How long after the person's part the files are waited for before the person is told that they are
    /// missing.
    static constexpr int kFilesMs = 5000;

    explicit LessonProject(QObject *parent = nullptr);

    /// A lesson asks for its data files. What an earlier one left unfinished is dropped.
    void begin();
    /// No lesson waits for a project any more: the files stand in one, or the lesson has ended.
    void drop();

    /// The data files, path inside the project to text.
    void takeFiles(const Files &files);
    /// The person has made a new project with this name. Ignored while no lesson waits: the project is then
    /// the person's own.
    void takeProject(const QString &name);
    /// That project is open no more: files that come late wait for the next one that the person makes.
    void leaveProject();

Q_SIGNALS:
    /// Both are there: the open project is to get these files. Until drop() is called, the files wait for the
    /// next project, too.
    void complete(const LessonProject::Files &files);
    /// The files have not come, which @p error tells the person. They may come late.
    void failed(const QString &error);

private:
    void tellWhenComplete();

    QTimer m_filesMissing;
    bool m_waits = false;
    std::optional<Files> m_files;
    /// Name of the project.
    std::optional<QString> m_project;
};
