#pragma once

#include "lesson-check/Catalogue.h"
#include "lesson-check/Finding.h"
#include "lesson-check/Lesson.h"
#include "lesson-check/LessonList.h"

/// The numbers of the texts that @p lesson uses: none below the highest is left out.
[[nodiscard]] Findings checkNumbers(const Lesson &lesson);

/// The texts that @p lesson uses: each number is in @p catalogue, each text there is used.
[[nodiscard]] Findings checkTexts(const Lesson &lesson, const Catalogue &catalogue);

/// The same for the titles of the list in the file @p listFile.
[[nodiscard]] Findings checkTitles(const QString &listFile, const QVector<LessonEntry> &entries,
                                   const Catalogue &catalogue);

/// The same texts stand in every language.
[[nodiscard]] Findings checkLanguages(const QVector<Catalogue> &catalogues);
