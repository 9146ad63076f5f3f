#pragma once

#include "TutorialFont/TutorialFont.h"
#include "lesson-check/Catalogue.h"
#include "lesson-check/Finding.h"

/// Lays hints out as the bubble does and says which are too long. Needs a QGuiApplication.
class BubbleCheck
{
public:
    /// Every text of the context @p context of @p catalogue, in the font of the catalogue's language.
    [[nodiscard]] Findings check(const Catalogue &catalogue, const QString &context);

private:
    TutorialFont m_font;
};
