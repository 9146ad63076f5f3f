#pragma once

#include "PlaceMemory.h"
#include "host/HostLink.h"
#include "host/LessonSession.h"
#include "project/LessonProject.h"
#include "strip/LessonCourse.h"

#include <QObject>
#include <QPointer>

#include <memory>

class EditorWindows;
class LessonStrip;
class QWindow;
class StripControl;
class SoundTrial;
class TestPlay;

/// The practice editor as a whole: joins the windows, the link and the lesson.
class PracticeEditor : public QObject
{
    Q_OBJECT

public:
    struct Options
    {
        /// Number of the lesson to play; 0 lets the person choose.
        int lesson = 0;
        /// Somebody else begins a lesson with session(): nobody is asked to choose one.
        bool hasLessonOfItsOwn = false;
        QString locale;
        /// Nobody is there to answer a message box: what goes wrong is told by troubled() alone.
        bool unattended = false;
        QString companionProgram;
        /// Key of the link; empty for a random one.
        QString key;
        /// The lesson begins without the question from where.
        bool beginsAtOnce = false;
        /// Where new projects are offered to go until the person has chosen a place; empty for the windows'
        /// own choice.
        QString projectsFolder;
        /// The file that keeps the place which the person has chosen from run to run; empty: none does.
        QString placeFile;
        /// Where the progress of the lessons is kept from run to run; empty: nowhere.
        QString progressFolder;
    };

    PracticeEditor(const Options &options, std::unique_ptr<EditorWindows> windows);
    ~PracticeEditor() override;

    PracticeEditor(const PracticeEditor &) = delete;
    PracticeEditor &operator=(const PracticeEditor &) = delete;
    PracticeEditor(PracticeEditor &&) = delete;
    PracticeEditor &operator=(PracticeEditor &&) = delete;

    /// Opens the main window and starts the companion. False with a text for the person when that fails.
    [[nodiscard]] bool start(QString *error);

    [[nodiscard]] LessonSession &session() { return m_session; }
    [[nodiscard]] LessonCourse &course() { return m_course; }
    /// The folder of the project that is open; empty when none is.
    [[nodiscard]] QString projectFolder() const;

Q_SIGNALS:
    /// The editor is to end with this exit status.
    void ended(int status);
    /// The companion is there, a process with this id.
    void companionConnected(qint64 pid);
    /// Something went wrong that a person has to know, in words for messages.
    void troubled(const QString &what);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool startLink(QString *error);
    void connectLink();
    void connectSession();
    void connectStrip();
    void connectProject();
    void onConnected();
    void onListed();
    void onLessonWanted();
    void onLost(const QString &lastWords);
    void restartCompanion();
    void tellPerson(const QString &text);
    /// The keyboard goes to the window in which the person works.
    void returnFocus();

    Options m_options;
    std::unique_ptr<EditorWindows> m_windows;
    LessonSession m_session;
    LessonCourse m_course;
    /// Below the contents of the main window, which owns it.
    LessonStrip *m_strip;
    StripControl *m_control;
    LessonProject m_lessonProject;
    PlaceMemory m_place;
    HostLink m_link;
    std::unique_ptr<TestPlay> m_testPlay;
    std::unique_ptr<SoundTrial> m_soundTrial;
    QPointer<QWindow> m_mainWindow; ///< watched; null before start()
    /// What the person wanted from the start has been seen to.
    bool m_isBegun = false;
};
