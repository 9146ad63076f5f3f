#pragma once

#include "lesson-check/BubbleCheck.h"
#include "lesson-check/Catalogue.h"
#include "lesson-check/Finding.h"
#include "lesson-check/Lesson.h"
#include "lesson-check/LessonList.h"
#include "lesson/description/DescriptionSet.h"

#include <QMap>
#include <QRegularExpression>

/// The lessons, catalogues and window descriptions of a source tree, and the check of all of them together.
class LessonLibrary
{
public:
    /// @p root: the directory that holds resource/, practice/ and authoring/.
    explicit LessonLibrary(QString root);

    /// Whether there is a list of lessons below the root at all.
    [[nodiscard]] bool exists() const;

    /// Reads everything and returns what is wrong, in an order that does not change from run to run. A lesson
    /// of the list that has no file yet is a note, and an error when the library is to be @p complete. Needs
    /// a QGuiApplication, to lay out the hints.
    [[nodiscard]] Findings check(bool complete);

    /// What is wrong with the scenario files in @p folder and below it, which are in no list and have no
    /// figures. Their texts are in the catalogues beside them, as the practice editor reads them with
    /// --scenario.
    [[nodiscard]] Findings checkScenarios(const QString &folder);

private:
    [[nodiscard]] QByteArray read(const QString &file);
    void report(Finding::Kind kind, const QString &file, int line, const QString &item, const QString &text);
    void readList();
    [[nodiscard]] DescriptionSet readDescriptions();
    void readCatalogues();
    void readLessons(bool complete);
    void readLesson(const QString &name, const QString &file);
    /// The catalogues of the scenario file, each of which is read once.
    [[nodiscard]] QVector<Catalogue> cataloguesBeside(const QString &file);
    void checkShipped();
    void checkLessons(bool complete);
    void checkWording();
    /// By itself, with its texts in @p catalogues.
    void checkLesson(const Lesson &lesson, const QVector<Catalogue> &catalogues,
                     const DescriptionSet &windows, BubbleCheck *bubble);
    /// Looks for contexts of lessons, which are called so, without a lesson.
    void checkContexts(const QRegularExpression &lessonName);

    QString m_root;
    Findings m_findings;
    QVector<LessonEntry> m_entries;
    QVector<Catalogue> m_catalogues;
    QVector<Lesson> m_lessons;
    /// Those of scenario files, by path.
    QMap<QString, Catalogue> m_beside;
};
