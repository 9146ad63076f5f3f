#pragma once

#include "author/ScenarioFile.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

class LessonSession;

/// Plays a scenario file on disk, and plays it again, from the step that is on, whenever it or its catalogue
/// has changed. A file that cannot be played after a change leaves the lesson as it was.
class ScenarioPlayer : public QObject
{
    Q_OBJECT

public:
    /// Begins when the companion of @p session is there for the first time, at the step with the id @p
    /// firstStep; the first one for an id that no step has. @p session stays the caller's and outlives this.
    ScenarioPlayer(ScenarioFile file, int firstStep, LessonSession *session, QObject *parent = nullptr);

    [[nodiscard]] QString lessonName() const { return m_file.name(); }
    /// Plays the file as it is now, from its first step, or from the one that was on last. The session
    /// refuses it when it cannot be read.
    void begin();
    void goOn();

Q_SIGNALS:
    /// A line about what is wrong with the file or its catalogue.
    void problemFound(const QString &problem);
    /// The lesson is played as the files have it since they changed.
    void reloaded();

private:
    void watch();
    void reload();
    bool play(int step);
    void playOrRefuse(int step);
    [[nodiscard]] QByteArray contents() const;

    ScenarioFile m_file;
    int m_step;
    bool m_isBegun = false;
    LessonSession *m_session;
    QFileSystemWatcher m_watcher;
    /// Editors write a file in several goes.
    QTimer m_settled;
    QByteArray m_contents;
};
