#pragma once

#include "host/LessonSession.h"
#include "strip/LessonCatalog.h"
#include "strip/LessonProgress.h"

#include <QObject>
#include <QSet>
#include <QVector>

#include <functional>

/// The person's course through the lessons: which there are, which one is wanted, and where each goes on,
/// also in the next run of the editor. It asks the session for the wanted lesson when it is told that the
/// companion is there.
class LessonCourse : public QObject
{
    Q_OBJECT

public:
    struct Entry
    {
        QString name;
        QString title;
        /// Its place in the list, from 1; 0 for one that is in no list.
        int number = 0;
        QString teaches;
        /// 0 when it is not known how long it takes.
        int minutes = 0;
        /// False for one that is not written yet.
        bool isWritten = true;
        /// The companion was asked for it and has not handed it over.
        bool isRefused = false;
        LessonProgress::Record progress;

        /// "3. Doors"
        [[nodiscard]] QString numberedTitle() const;
        [[nodiscard]] bool canBePlayed() const { return isWritten && !isRefused; }
    };

    /// @p session outlives this. @p folder is where the progress is kept; nothing is when it is empty.
    LessonCourse(LessonSession *session, const LessonCatalog &catalog, const QString &folder,
                 QObject *parent = nullptr);

    /// Begins a lesson of the person's own: at the step at which it was left, or at its first.
    using PlayOwn = std::function<void(bool goesOn)>;

    /// A lesson of the person's own is one more, or takes the place of the one with its name. It is played
    /// by @p play, and the companion is not asked for it.
    void setOwnLesson(const QString &lessonName, PlayOwn play);

    /// All lessons in their order; none before the companion has listed them.
    [[nodiscard]] QVector<Entry> entries() const;
    /// The lesson, with its name for a title when it is in no list.
    [[nodiscard]] Entry entry(const QString &lessonName) const;
    /// The next that can be played behind this one; an empty name when there is none.
    [[nodiscard]] QString lessonAfter(const QString &lessonName) const;

    /// The lesson that is wanted: asked for, or playing, or broken off by the end of the companion. Empty
    /// when there is none.
    [[nodiscard]] QString wanted() const { return m_wanted; }

    /// The lesson is wanted, from its beginning.
    void begin(const QString &lessonName);
    /// The lesson is wanted, from where it was left; from its beginning when that is not known.
    void goOn(const QString &lessonName);
    /// Ends the lesson that runs, and keeps its place.
    void leave();

    /// The companion is there and has listed its lessons: asks for the wanted one.
    void ask();

Q_SIGNALS:
    /// A lesson is wanted: ask() when the companion is there.
    void lessonWanted();
    /// The lessons or their progress are others now.
    void changed();
    /// Something about the progress that the person has to be told.
    void problemFound(const QString &text);

private:
    void want(const QString &lessonName, bool goesOn);
    /// It cannot be played.
    void giveUp(const QString &lessonName);
    void onStarted();
    void onStepReached();
    void keepPlace();
    void tellProblems();

    LessonSession *m_session;
    LessonCatalog m_catalog;
    LessonProgress m_progress;
    QVector<LessonSession::Lesson> m_lessons;
    /// Empty when there is none.
    QString m_ownLesson;
    PlayOwn m_playOwn;
    QSet<QString> m_refused;
    QString m_wanted;
    bool m_goesOn = false;
    /// Number of the step at which the lesson that was asked for is to go on; 0 for its beginning.
    int m_awaited = 0;
};
