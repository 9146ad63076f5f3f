#pragma once

#include "strip/LessonCourse.h"

#include <QDialog>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// The list of lessons, from which the person chooses the one to play: what each teaches, how long it takes,
/// and how far the person has come in it. Lessons that cannot be played are grey.
class LessonChooser : public QDialog
{
    Q_OBJECT

public:
    explicit LessonChooser(QWidget *parent);

    /// Fills the list. What was selected stays so; at first that is @p present, else the first that is not
    /// done.
    void setEntries(const QVector<LessonCourse::Entry> &entries, const QString &present);

Q_SIGNALS:
    void beginRequested(const QString &lessonName);
    void goOnRequested(const QString &lessonName);

private:
    [[nodiscard]] QTreeWidgetItem *makeItem(const LessonCourse::Entry &entry) const;
    [[nodiscard]] LessonCourse::Entry selected() const;
    void fitColumns();
    void updateButtons();
    void chooseSelected();

    QVector<LessonCourse::Entry> m_entries;
    QTreeWidget *m_list;
    QPushButton *m_begin;
    QPushButton *m_goOn;
};
