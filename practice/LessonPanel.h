#pragma once

#include "host/LessonSession.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;

/// The strip above the editor from which the person chooses a lesson, starts it again, or passes a step.
class LessonPanel : public QWidget
{
    Q_OBJECT

public:
    LessonPanel();

    void setLessons(const QVector<LessonSession::Lesson> &lessons);
    void showStep(const QString &lessonName, int number, int count);
    /// The step is in a window called @p windowTitle that the person has closed.
    void showClosed(const QString &windowTitle);
    void showFinished();
    void showRefused(const QString &lessonName);
    /// While the companion is silent this is said instead; afterwards what was said last stands there again.
    void setSilent(bool silent);

Q_SIGNALS:
    void lessonChosen(const QString &lessonName);
    void skipRequested();

private:
    [[nodiscard]] QString titleOf(const QString &lessonName) const;
    void tell(const QString &text);

    QComboBox *m_lessons;
    QPushButton *m_start;
    QPushButton *m_skip;
    QLabel *m_status;
    QString m_told;
};
