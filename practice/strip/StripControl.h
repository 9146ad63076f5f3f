#pragma once

#include "strip/StripState.h"

#include <QObject>
#include <QPointer>

class LessonChooser;
class LessonCourse;
class LessonSession;
class LessonStrip;
class QMessageBox;

/// Lets the strip and the list of lessons show what the lesson is at, and does what the person asks for
/// there: with the session what concerns the present step, with the course what concerns which lesson is
/// played.
class StripControl : public QObject
{
    Q_OBJECT

public:
    /// All of them outlive this.
    StripControl(LessonSession *session, LessonCourse *course, LessonStrip *strip, QObject *parent = nullptr);

    /// Opens the list of lessons above the editor, or brings it to the front. The lesson is selected in it.
    void openChooser(const QString &lessonName = {});
    /// The companion is silent, or talks again: meanwhile the strip says so in place of anything else.
    void setSilent(bool silent);
    /// The companion is gone.
    void showLost();

Q_SIGNALS:
    /// The lesson is done: praise the person in these words, and lead to the next one where there is one.
    void praised(const QString &praise, bool hasNextLesson);

private:
    /// What the strip tells while no lesson runs.
    enum class Talk { kWelcome, kOpening, kRefused, kLeft, kLost, kFinished };

    void connectSession();
    void connectStrip();
    void talk(Talk talk, const QString &lessonName);
    void update();
    [[nodiscard]] StripState playingState() const;
    [[nodiscard]] QString words() const;
    [[nodiscard]] QString praise() const;
    void fillChooser();
    /// Asks first when a place in the lesson would be given up.
    void begin(const QString &lessonName);
    void goOn(const QString &lessonName);
    void closeChooser();

    LessonSession *m_session;
    LessonCourse *m_course;
    LessonStrip *m_strip;
    QPointer<LessonChooser> m_chooser;
    QPointer<QMessageBox> m_question;
    Talk m_talk = Talk::kWelcome;
    /// The lesson that the talk is about.
    QString m_lessonName;
    bool m_offersHelp = false;
    bool m_isSilent = false;
};
