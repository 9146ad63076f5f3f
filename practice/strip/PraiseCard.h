#pragma once

#include <QFrame>
#include <QPoint>

class QLabel;
class QPushButton;

/// The word of praise at the end of a lesson, where the person has just read the last hint, with the way to
/// the next lesson. It lies in the main window, above the map, until it is closed or another lesson is
/// wanted.
class PraiseCard : public QFrame
{
    Q_OBJECT

public:
    /// In @p window, which owns it. Hidden at first.
    explicit PraiseCard(QWidget *window);

    /// @p middle is in global screen pixels; the card stays inside the window.
    void praise(const QString &words, bool hasNextLesson, const QPoint &middle);

Q_SIGNALS:
    void nextLessonRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void stayInside();

    QLabel *m_words;
    QPushButton *m_next;
};
