#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QMap>
#include <QSet>
#include <QString>

/// What is remembered of the person's lessons from one run of the editor to the next: for each lesson how far
/// it has come, and the bookmark with which it goes on.
///
/// It stands in a folder of its own: progress.json, and a file for each bookmark, all written whole or not at
/// all. A file that cannot be understood is put aside under another name, never overwritten.
class LessonProgress
{
    Q_DECLARE_TR_FUNCTIONS(LessonProgress)

public:
    struct Record
    {
        /// It was played to its end at least once.
        bool isDone = false;
        /// Number of the step at which it goes on, from 1; 0 when it begins at its beginning.
        int step = 0;
        /// How many steps it has; 0 when that is not known.
        int steps = 0;
    };

    /// Reads what is in @p folder, which need not exist. An empty one: all is forgotten with this object.
    explicit LessonProgress(const QString &folder);

    [[nodiscard]] Record record(const QString &lessonName) const { return m_records.value(lessonName); }

    /// The lesson has come to this place, where @p bookmark lets it go on.
    void reach(const QString &lessonName, int step, int steps, const QJsonObject &bookmark);
    /// It was played to its end.
    void finish(const QString &lessonName);
    /// It is to begin at its beginning; whether it was done once stays.
    void forgetPlace(const QString &lessonName);

    /// Empty when there is none to go on with.
    [[nodiscard]] QJsonObject bookmark(const QString &lessonName);

    /// What the person has to be told about files that cannot be read or written, one sentence or more each;
    /// each is given once. Writing goes on being tried.
    [[nodiscard]] QStringList takeProblems();

private:
    void readRecords();
    [[nodiscard]] QString pathOf(const QString &fileName) const;
    [[nodiscard]] static QString bookmarkFile(const QString &lessonName);
    /// The file's object; an empty one when there is no such file, or none that can be understood.
    [[nodiscard]] QJsonObject read(const QString &fileName);
    void putAside(const QString &fileName);
    void write(const QString &fileName, const QJsonObject &object);
    void keep(const QString &lessonName, Record record);
    void complain(const QString &problem);

    QString m_folder;
    QMap<QString, Record> m_records;
    QMap<QString, QJsonObject> m_bookmarks;
    QStringList m_problems;
    /// Files that could not be read, which the person was told.
    QSet<QString> m_unreadable;
    bool m_cannotWrite = false;
};
