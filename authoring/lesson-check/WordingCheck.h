#pragma once

#include "lesson-check/Catalogue.h"
#include "lesson-check/EditorTexts.h"
#include "lesson-check/Finding.h"
#include "lesson-check/Glossary.h"

/// Words in lessons, sample project and practice editor that the glossary has others for.
[[nodiscard]] Findings checkTerms(const Glossary &glossary, const QVector<Catalogue> &catalogues,
                                  const EditorTexts &texts);

/// Names in quotation marks, in the hints of the lesson @p context, that nothing shows in the language of
/// @p catalogue; @p shown is what there is.
[[nodiscard]] Findings checkQuotedNames(const QString &context, const Catalogue &catalogue,
                                        const QSet<QString> &shown);
