#pragma once

#include "strip/StripState.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

/// The strip below the editor's contents: where the lesson is, what the bubble says, for those who read or
/// hear it here, and the buttons with which the person steers the lesson, also by keys while a dialog is
/// open. It shows what it is given and tells what is pressed.
class LessonStrip : public QWidget
{
    Q_OBJECT

public:
    explicit LessonStrip(QWidget *parent = nullptr);

    void setState(const StripState &state);

    /// "Put it back".
    [[nodiscard]] QWidget *putBackButton() const;

Q_SIGNALS:
    void nextPressed();
    void answered(bool yes);
    void backRequested();
    void helpRequested();
    void putBackRequested();
    void skipRequested();
    void startAgainRequested();
    void leaveRequested();
    void lessonsRequested();
    void nextLessonRequested();
    /// After any of these: the focus may go back to where the person works.
    void used();

private:
    /// @p key: 0 for a button that has none.
    QPushButton *makeButton(const char *objectName, const QString &text, int key,
                            void (LessonStrip::*pressed)());
    void buildTop();
    void buildBottom();
    void showProgress(const StripState &state);
    void tell(const QString &text);
    void answerYes() { Q_EMIT answered(true); }
    void answerNo() { Q_EMIT answered(false); }

    QLabel *m_title;
    QProgressBar *m_progress;
    QLabel *m_minutes;
    QLabel *m_picture;
    QLabel *m_text;
    QPushButton *m_lessons;
    QPushButton *m_startAgain;
    QPushButton *m_leave;
    QPushButton *m_back;
    QPushButton *m_next;
    QPushButton *m_yes;
    QPushButton *m_no;
    QPushButton *m_help;
    QPushButton *m_putBack;
    QPushButton *m_skip;
    QPushButton *m_nextLesson;
};
