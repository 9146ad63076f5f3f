#pragma once

#include "lesson-check/Finding.h"

/// One line of the list of lessons.
struct LessonEntry
{
    int line = 0;     ///< counted from 1
    QString filename; ///< base name of the scenario file
    int title = -1;   ///< the number N of qsTr("#N")
};

/// The list of lessons, held to its exact form.
class LessonList
{
public:
    /// Reads @p bytes; what is wrong with the file named @p file is appended to @p findings.
    LessonList(const QString &file, const QByteArray &bytes, Findings &findings);

    [[nodiscard]] const QVector<LessonEntry> &entries() const { return m_entries; }

private:
    QVector<LessonEntry> m_entries;
};
